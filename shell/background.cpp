// SPDX-License-Identifier: MIT
#include "shell/background.h"

#include "shell/command_line.h"
#include "shell/detached.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "toolkit/readable.h"
#include "ui/message_board.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

#include <fmt/format.h>

namespace {

void show_failure(const std::string& command, const EarlyFailure& failure) {
    std::string line = failure.last_line;
    std::ranges::replace_if(
        line,
        [](char c) {
            return has_control_characters({&c, 1});
        },
        ' ');
    report(fmt::format("Failed with status {}: {}\n{}{}", failure.status, command, line,
                       line.empty() ? "" : "\n"));
}

/// The "&" is ours: with sh's own the command would ignore interrupts (POSIX, shell language, 2.11), and of
/// several commands in the line only the last would be in the background.
void start(const std::string& command) {
    DetachedShell shell = start_detached_shell(command, orvik_home + "/bin");
    if (shell.error != 0) {
        report(fmt::format("No shell could be started for it: {}\n", std::strerror(shell.error)));
        return;
    }
    when_readable(message_board(), std::move(shell.outcome), [command](const terminal::Descriptor& outcome) {
        if (const std::optional<EarlyFailure> failure = early_failure(outcome)) {
            show_failure(command, *failure);
        }
    });
}

}  // namespace

void run_in_background(const CommandLine& line, std::string_view ampersand) {
    const std::string command = line.read_by(ShellFamily::other).text;
    report(fmt::format("{}{}\n", command, ampersand));
    start(command);
}

void start_in_background(const CommandLine& line) { start(line.read_by(ShellFamily::other).text); }
