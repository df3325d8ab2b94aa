// SPDX-License-Identifier: MIT
#include "shell/status_file.h"

#include "shell/files.h"
#include "shell/lines.h"
#include "shell/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <fmt/printf.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t largest_file = std::size_t{64} * 1024;
constexpr int status_files = 200;

struct Key {
    std::string_view mark;
    std::string ShellStatus::*value;
    std::size_t longest;
};

constexpr std::array keys{
    Key{"P:", &ShellStatus::prompt, 79}, Key{"C:", &ShellStatus::cwd, 1023},
    Key{"H:", &ShellStatus::host, 79},   Key{"U:", &ShellStatus::user, 79},
    Key{"V:", &ShellStatus::view, 99},
};

/// The value of a line: what follows the first colon behind its first word.
std::string_view value_of(std::string_view line) {
    const std::size_t word = line.find_first_not_of(':');
    const std::size_t colon = word == std::string_view::npos ? word : line.find(':', word);
    return colon == std::string_view::npos ? std::string_view() : line.substr(colon + 1);
}

void read_line(std::string_view line, ShellStatus& status) {
    const auto* const key = std::find_if(keys.begin(), keys.end(), [&](const Key& known) {
        return line.find(known.mark) != std::string_view::npos;
    });
    if (key == keys.end()) {
        return;
    }
    const std::string_view value = value_of(line);
    if (!value.empty()) {
        status.*(key->value) = value.substr(0, key->longest);
    }
}

/// Whether the file could be locked; not where a running copy of the tool holds it.
bool lock(const terminal::Descriptor& file) { return flock(file.get(), LOCK_EX | LOCK_NB) == 0; }

/// Opens what stands in a status file's place, which may be anything; -1 where that cannot be done.
terminal::Descriptor open_left(const std::string& path) {
    return terminal::Descriptor(open(path.c_str(), O_RDWR | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC));
}

std::string status_path(const std::string& home, int number) {
    return fmt::sprintf("%s/.orvik-status%d", home, number);
}

/// Makes a status file; -1, and errno says why, when it cannot be made.
terminal::Descriptor make_own(const std::string& path) {
    terminal::Descriptor made(
        open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (made.get() >= 0 && !lock(made) && errno == EWOULDBLOCK) {  // another copy was quicker: it is theirs
        errno = EEXIST;
        return terminal::Descriptor(-1);
    }
    return made;
}

/// Takes over a status file that has been left; -1 when it is in use or no status file of the user's.
terminal::Descriptor take_over(const std::string& path) {
    terminal::Descriptor left = open_left(path);
    struct stat locked {};
    struct stat named {};
    // Between the opening and the locking its owner may have removed it, and another copy have made a new
    // one.
    const bool taken = left.get() >= 0 && lock(left) && fstat(left.get(), &locked) == 0 &&
                       lstat(path.c_str(), &named) == 0 && locked.st_ino == named.st_ino &&
                       locked.st_dev == named.st_dev && S_ISREG(locked.st_mode) && locked.st_nlink == 1 &&
                       locked.st_uid == geteuid() && fchmod(left.get(), S_IRUSR | S_IWUSR) == 0 &&
                       ftruncate(left.get(), 0) == 0;
    return taken ? std::move(left) : terminal::Descriptor(-1);
}

}  // namespace

ShellStatus parse_status(std::string_view contents) {
    ShellStatus status;
    while (!contents.empty()) {
        read_line(take_line(contents), status);
    }
    return status;
}

std::optional<std::string> read_status_file(const std::string& path) {
    FileContents file = read_file(path, largest_file);
    if (file.error != 0 && file.error != EFBIG) {
        return std::nullopt;
    }
    return std::move(file.text);
}

StatusFile create_status_file(const std::string& home) {
    for (const auto take : {make_own, take_over}) {
        for (int number = 0; number < status_files; ++number) {
            std::string path = status_path(home, number);
            terminal::Descriptor made = take(path);
            if (made.get() >= 0) {
                return {.path = std::move(path), .lock = std::move(made)};
            }
            if (take == make_own && errno != EEXIST) {
                return {.error = errno};
            }
        }
    }
    return {.error = EEXIST};
}

void remove_left_status_files(const std::string& home, int last) {
    for (int number = 0; number <= last; ++number) {
        const std::string path = status_path(home, number);
        const terminal::Descriptor left = open_left(path);
        if (left.get() < 0 || lock(left)) {  // the lock keeps it from being taken over meanwhile
            unlink(path.c_str());
        }
    }
}

std::string status_line(const ShellStatus& status, unsigned enabled, int process_id) {
    std::string line;
    if ((enabled & status_host) != 0) {
        line += fmt::sprintf("Host: %s   ", status.host);
    }
    if ((enabled & status_user) != 0) {
        line += fmt::sprintf("User: %s   ", status.user);
    }
    if ((enabled & status_pid) != 0) {
        line += fmt::sprintf("PID: %d   ", process_id);
    }
    if ((enabled & status_view) != 0) {
        line += fmt::sprintf("View: %s   ", getfilename(status.view));
    }
    return line;
}
