// SPDX-License-Identifier: MIT
#include "shell/status_file.h"

#include "shell/files.h"
#include "shell/lines.h"
#include "shell/text.h"
#include "terminal/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <fmt/printf.h>

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

std::string create_status_file(const std::string& home) {
    for (int number = 0; number < status_files; ++number) {
        std::string path = fmt::sprintf("%s/.orvik-status%d", home, number);
        const terminal::Descriptor made(
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (made.get() >= 0) {
            return path;
        }
        if (errno != EEXIST) {
            return {};
        }
    }
    return {};
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
