// SPDX-License-Identifier: MIT
#include "shell/foreground.h"

#include "shell/files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <iterator>
#include <optional>
#include <set>

#include <fmt/format.h>
#include <unistd.h>

namespace {

struct KnownProgram {
    std::string_view name;
    ProgramKind kind;
};

constexpr std::array known_programs{
    KnownProgram{"ash", ProgramKind::shell},
    KnownProgram{"bash", ProgramKind::shell},
    KnownProgram{"busybox", ProgramKind::shell},
    KnownProgram{"csh", ProgramKind::shell},
    KnownProgram{"dash", ProgramKind::shell},
    KnownProgram{"fish", ProgramKind::shell},
    KnownProgram{"ksh", ProgramKind::shell},
    KnownProgram{"ksh93", ProgramKind::shell},
    KnownProgram{"mksh", ProgramKind::shell},
    KnownProgram{"rbash", ProgramKind::shell},
    KnownProgram{"sh", ProgramKind::shell},
    KnownProgram{"tcsh", ProgramKind::shell},
    KnownProgram{"zsh", ProgramKind::shell},
    KnownProgram{"login", ProgramKind::far_shell},
    KnownProgram{"mosh-client", ProgramKind::far_shell},
    KnownProgram{"rlogin", ProgramKind::far_shell},
    KnownProgram{"rsh", ProgramKind::far_shell},
    KnownProgram{"slogin", ProgramKind::far_shell},
    KnownProgram{"ssh", ProgramKind::far_shell},
    KnownProgram{"su", ProgramKind::far_shell},
    KnownProgram{"sudo", ProgramKind::far_shell},
    KnownProgram{"telnet", ProgramKind::far_shell},
    KnownProgram{"emacs", ProgramKind::full_screen},
    KnownProgram{"htop", ProgramKind::full_screen},
    KnownProgram{"joe", ProgramKind::full_screen},
    KnownProgram{"mc", ProgramKind::full_screen},
    KnownProgram{"mcedit", ProgramKind::full_screen},
    KnownProgram{"mutt", ProgramKind::full_screen},
    KnownProgram{"nano", ProgramKind::full_screen},
    KnownProgram{"nvim", ProgramKind::full_screen},
    KnownProgram{"pico", ProgramKind::full_screen},
    KnownProgram{"screen", ProgramKind::full_screen},
    KnownProgram{"tmux: client", ProgramKind::full_screen},
    KnownProgram{"vi", ProgramKind::full_screen},
    KnownProgram{"view", ProgramKind::full_screen},
    KnownProgram{"vim", ProgramKind::full_screen},
    KnownProgram{"vim.basic", ProgramKind::full_screen},
    KnownProgram{"vim.tiny", ProgramKind::full_screen},
};

constexpr std::size_t largest_stat = 4096;

/// Words of /proc/PID/stat, counted from the name, which is in brackets and may hold any.
enum class StatWord : std::uint8_t { group = 3, session = 4 };

std::optional<pid_t> number_in(std::string_view stat, StatWord wanted) {
    const std::size_t name_end = stat.rfind(')');
    if (name_end == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view rest = stat.substr(name_end);  // ") S 1 1234 ..."
    for (int word = 0; word < static_cast<int>(wanted); ++word) {
        rest.remove_prefix(std::min(rest.find(' '), rest.size() - 1) + 1);
    }
    pid_t number = 0;
    return std::from_chars(rest.data(), rest.data() + rest.size(), number).ec == std::errc()
               ? std::optional(number)
               : std::nullopt;
}

/// A process that has ended and is kept for its parent to know.
bool has_ended(std::string_view stat) {
    const std::size_t name_end = stat.rfind(')');
    return name_end != std::string_view::npos && stat.substr(name_end).starts_with(") Z");
}

std::string name_of_process(pid_t process) {
    std::string name = read_file(fmt::format("/proc/{}/comm", process), largest_stat).text;
    return name.substr(0, name.rfind('\n'));
}

/// Calls `action` with every process's number and the text of its stat file.
template <typename Action>
void for_each_process(Action action) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
        const std::string number = entry.path().filename();
        pid_t process = 0;
        const char* const end = number.data() + number.size();
        if (std::from_chars(number.data(), end, process).ptr == end) {
            action(process, read_file(entry.path() / "stat", largest_stat).text);
        }
    }
}

/// Where the leader has ended.
std::string name_of_member(pid_t group) {
    pid_t last = -1;
    for_each_process([&](pid_t process, const std::string& stat) {
        if (process > last && number_in(stat, StatWord::group) == group) {
            last = process;
        }
    });
    return last > 0 ? name_of_process(last) : "";
}

}  // namespace

ProgramKind kind_of_program(std::string_view name) {
    for (const KnownProgram& known : known_programs) {
        if (known.name == name) {
            return known.kind;
        }
    }
    return ProgramKind::other;
}

std::string program_name(pid_t group) {
    if (group <= 0) {
        return {};
    }
    std::string name = name_of_process(group);
    return name.empty() ? name_of_member(group) : name;
}

std::vector<std::string> programs_in_session(pid_t shell) {
    std::set<pid_t> groups;
    for_each_process([&](pid_t /*process*/, const std::string& stat) {
        const pid_t group = number_in(stat, StatWord::group).value_or(shell);
        if (shell > 0 && number_in(stat, StatWord::session) == shell && group != shell && !has_ended(stat)) {
            groups.insert(group);
        }
    });
    std::vector<std::string> names;
    std::ranges::transform(groups, std::back_inserter(names), program_name);
    return names;
}

std::string directory_of(pid_t process) {
    std::error_code unknown;
    return process > 0 ? std::filesystem::read_symlink(fmt::format("/proc/{}/cwd", process), unknown).string()
                       : std::string();
}

bool works_in_background(pid_t front_group, std::string_view program) {
    const pid_t session = getsid(front_group);
    bool works = false;
    for_each_process([&](pid_t process, const std::string& stat) {
        works =
            works || (session > 0 && number_in(stat, StatWord::session) == session &&
                      number_in(stat, StatWord::group) != front_group && name_of_process(process) == program);
    });
    return works;
}
