// SPDX-License-Identifier: MIT
#include "shell/background.h"

#include "shell/command_line.h"
#include "shell/messages.h"
#include "terminal/child_process.h"
#include "terminal/descriptor.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char* system_shell = "/bin/sh";

// The rules of terminal/child_process.h hold for these two.

[[noreturn]] void fail(int failure) {
    const int error = errno;
    (void)!write(failure, &error, sizeof error);
    _exit(1);
}

/// Becomes the shell. The descriptor that takes a failure is closed by the execution.
[[noreturn]] void become_shell(char* const* arguments, int failure, int limit) {
    constexpr int kept_for_failure = STDERR_FILENO + 1;
    close(STDIN_FILENO);
    // The lowest free number is that of the standard input.
    if (open("/dev/null", O_RDONLY) < 0) {
        fail(failure);
    }
    if (failure != kept_for_failure && dup3(failure, kept_for_failure, O_CLOEXEC) < 0) {
        fail(failure);
    }
    terminal::close_descriptors_from(kept_for_failure + 1, limit);
    execv(system_shell, arguments);
    fail(kept_for_failure);
}

/// The error number that the child sends; 0 when it has closed the pipe without.
int await_failure(int pipe) {
    int error = 0;
    while (read(pipe, &error, sizeof error) < 0 && errno == EINTR) {
    }
    return error;
}

}  // namespace

int start_detached_shell(const std::string& command_line) {
    std::string line = command_line;
    const std::array arguments{const_cast<char*>("sh"), const_cast<char*>("-c"), line.data(),
                               static_cast<char*>(nullptr)};
    const int limit = terminal::descriptor_limit();
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return errno;
    }
    const terminal::Descriptor failure(ends[0]);
    terminal::Descriptor report_failure(ends[1]);
    const pid_t child = terminal::fork_with_signals_blocked();
    if (child == 0) {
        // The shell is the child of a child that ends at once: the system's first process waits for it.
        terminal::reset_signals();
        setsid();
        const pid_t shell = fork();
        if (shell == 0) {
            become_shell(arguments.data(), ends[1], limit);
        }
        if (shell < 0) {
            fail(ends[1]);
        }
        _exit(0);
    }
    const int fork_error = errno;
    close(report_failure.release());
    if (child < 0) {
        return fork_error;
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return await_failure(failure.get());
}

namespace {

/// The "&" is ours: with sh's own the command would ignore interrupts (POSIX, shell language, 2.11), and of
/// several commands in the line only the last would be in the background.
void start(const std::string& command) {
    if (const int error = start_detached_shell(command); error != 0) {
        report(fmt::format("No shell could be started for it: {}\n", std::strerror(error)));
    }
}

}  // namespace

void run_in_background(const CommandLine& line, std::string_view ampersand) {
    const std::string command = line.read_by(ShellFamily::other).text;
    report(fmt::format("{}{}\n", command, ampersand));
    start(command);
}

void start_in_background(const CommandLine& line) { start(line.read_by(ShellFamily::other).text); }
