// SPDX-License-Identifier: MIT
#include "shell/detached.h"

#include "terminal/child_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The shell is watched by a process of its own, its parent: that takes what is written to the shell's
// standard error, passes it on and remembers the last line. After two seconds, or when the shell has ended
// before, it becomes `tee`, which goes on passing on for as long as the shell's programs live: without a
// reader, they would be killed by what they write.

constexpr long watched_seconds = 2;
constexpr const char* system_shell = "/bin/sh";

/// What the watching process tells of a shell that has failed: less than a pipe takes at once.
struct Report {
    int status = 0;
    unsigned length = 0;
    std::array<char, 400> line{};
};

/// All that the child processes need, made before the fork.
struct Start {
    std::array<char*, 4> shell;
    std::array<char*, 3> relay;
    std::vector<char*> environment;
    int descriptor_limit = 0;
};

// The rules of terminal/child_process.h hold for all of these.

[[noreturn]] void fail(int failure) {
    const int error = errno;
    (void)!write(failure, &error, sizeof error);
    _exit(1);
}

/// Gives a descriptor a number that is free or may be lost. Closed by an execution only beyond the standard
/// ones.
void move_descriptor(int from, int to, int failure) {
    if (from != to && dup3(from, to, to > STDERR_FILENO ? O_CLOEXEC : 0) < 0) {
        fail(failure);
    }
}

/// The last line of a text that comes in pieces; a line end that nothing has followed counts for nothing.
class LastLine {
  public:
    void add(const char* text, std::size_t size) {
        for (const char* at = text; at != text + size; ++at) {
            if (*at == '\n') {
                ended_ = true;
                continue;
            }
            if (ended_) {
                length_ = 0;
                ended_ = false;
            }
            if (length_ < line_.size()) {
                line_[length_++] = *at;
            }
        }
    }
    void put_into(Report& report) const {
        report.line = line_;
        report.length = length_;
    }

  private:
    decltype(Report::line) line_{};
    unsigned length_ = 0;
    bool ended_ = false;
};

/// Passes on what can be read now. False at the end of what there will ever be.
bool pass_on(int from, LastLine& last) {
    std::array<char, 4096> text;
    const ssize_t count = read(from, text.data(), text.size());
    if (count > 0) {
        last.add(text.data(), static_cast<std::size_t>(count));
        (void)!write(STDERR_FILENO, text.data(), static_cast<std::size_t>(count));
    }
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}

timespec time_left(const timespec& end) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    timespec left{end.tv_sec - now.tv_sec, end.tv_nsec - now.tv_nsec};
    if (left.tv_nsec < 0) {
        left = {left.tv_sec - 1, left.tv_nsec + 1'000'000'000};
    }
    return left.tv_sec < 0 ? timespec{} : left;
}

/// Waits for the shell to end, within the time that it is watched: its exit status, or 0. SIGCHLD is blocked
/// but for the waiting.
int await_end(pid_t shell, int errors, LastLine& last, bool& open) {
    timespec end{};
    clock_gettime(CLOCK_MONOTONIC, &end);
    end.tv_sec += watched_seconds;
    sigset_t none;
    sigemptyset(&none);
    for (;;) {
        int status = 0;
        if (waitpid(shell, &status, WNOHANG) == shell) {
            return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        const timespec left = time_left(end);
        if (left.tv_sec == 0 && left.tv_nsec == 0) {
            return 0;
        }
        pollfd ready{.fd = open ? errors : -1, .events = POLLIN, .revents = 0};
        if (ppoll(&ready, 1, &left, &none) > 0) {
            open = pass_on(errors, last);
        }
    }
}

void note_child(int /*signal*/) {}

/// The watching process. Of its descriptors, `errors` is the shell's standard error, `outcome` takes the
/// report.
[[noreturn]] void watch(pid_t shell, int errors, int outcome, const Start& start) {
    LastLine last;
    bool open = true;
    Report report;
    report.status = await_end(shell, errors, last, open);
    // What was written before the end is there by now.
    for (pollfd ready{.fd = errors, .events = POLLIN, .revents = 0}; open && poll(&ready, 1, 0) > 0;) {
        open = pass_on(errors, last);
    }
    if (report.status != 0) {
        last.put_into(report);
        (void)!write(outcome, &report, sizeof report);
    }
    close(outcome);
    if (!open) {
        _exit(0);
    }
    dup2(errors, STDIN_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    close(errors);
    for (const char* program : {"/usr/bin/tee", "/bin/tee"}) {
        execv(program, start.relay.data());
    }
    while (pass_on(STDIN_FILENO, last)) {
    }
    _exit(0);
}

/// Becomes the shell. The descriptor that takes a failure is closed by the execution.
[[noreturn]] void become_shell(const Start& start, int errors, int failure) {
    constexpr int kept_for_failure = STDERR_FILENO + 1;
    terminal::reset_signals();
    setsid();
    close(STDIN_FILENO);
    // The lowest free number is that of the standard input.
    if (open("/dev/null", O_RDONLY) < 0) {
        fail(failure);
    }
    move_descriptor(errors, STDERR_FILENO, failure);
    move_descriptor(failure, kept_for_failure, failure);
    terminal::close_descriptors_from(kept_for_failure + 1, start.descriptor_limit);
    execve(system_shell, start.shell.data(), start.environment.data());
    fail(kept_for_failure);
}

/// The child of a child that has ended: the system's first process waits for it. It has a session of its own.
[[noreturn]] void start_and_watch(const Start& start, int outcome, int failure) {
    std::array<int, 2> errors{};
    if (pipe2(errors.data(), O_CLOEXEC) != 0) {
        fail(failure);
    }
    struct sigaction action {};
    action.sa_handler = note_child;
    sigaction(SIGCHLD, &action, nullptr);
    action.sa_handler = SIG_IGN;
    sigaction(SIGPIPE, &action, nullptr);
    sigset_t child_ends;
    sigemptyset(&child_ends);
    sigaddset(&child_ends, SIGCHLD);
    sigprocmask(SIG_BLOCK, &child_ends, nullptr);
    const pid_t shell = fork();
    if (shell == 0) {
        become_shell(start, errors[1], failure);
    }
    if (shell < 0) {
        fail(failure);
    }
    // Nothing of the tool's is kept but the standard output and error, and where the report goes.
    constexpr int kept_errors = STDERR_FILENO + 1;
    constexpr int kept_outcome = kept_errors + 1;
    const int spare = fcntl(outcome, F_DUPFD_CLOEXEC, kept_outcome + 1);
    move_descriptor(errors[0], kept_errors, failure);
    move_descriptor(spare, kept_outcome, failure);
    close(STDIN_FILENO);
    terminal::close_descriptors_from(kept_outcome + 1, start.descriptor_limit);
    watch(shell, kept_errors, kept_outcome, start);
}

// The rules end here.

/// The error number that a child sends; 0 when all have closed the pipe without.
int await_failure(int pipe) {
    int error = 0;
    while (read(pipe, &error, sizeof error) < 0 && errno == EINTR) {
    }
    return error;
}

/// The environment with `path`, a setting of PATH, in the place of the tool's own.
std::vector<char*> environment_with(std::string& path) {
    constexpr std::string_view name = "PATH=";
    std::vector<char*> all;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        if (path.empty() || !std::string_view(*variable).starts_with(name)) {
            all.push_back(*variable);
        }
    }
    if (!path.empty()) {
        all.push_back(path.data());
    }
    all.push_back(nullptr);
    return all;
}

std::string path_setting(const std::string& programs) {
    const char* path = std::getenv("PATH");
    return programs.empty() ? "" : "PATH=" + programs + ":" + (path == nullptr ? "/usr/bin:/bin" : path);
}

}  // namespace

DetachedShell start_detached_shell(const std::string& command_line, const std::string& programs) {
    std::string line = command_line;
    std::string path = path_setting(programs);
    const Start start{
        .shell = {const_cast<char*>("sh"), const_cast<char*>("-c"), line.data(), nullptr},
        .relay = {const_cast<char*>("tee"), const_cast<char*>("/dev/null"), nullptr},
        .environment = environment_with(path),
        .descriptor_limit = terminal::descriptor_limit(),
    };
    std::array<int, 2> failure_ends{};
    std::array<int, 2> outcome_ends{};
    if (pipe2(failure_ends.data(), O_CLOEXEC) != 0) {
        return {.error = errno};
    }
    const terminal::Descriptor failure(failure_ends[0]);
    terminal::Descriptor report_failure(failure_ends[1]);
    if (pipe2(outcome_ends.data(), O_CLOEXEC) != 0) {
        return {.error = errno};
    }
    terminal::Descriptor outcome(outcome_ends[0]);
    terminal::Descriptor report_outcome(outcome_ends[1]);
    const pid_t child = terminal::fork_with_signals_blocked();
    if (child == 0) {
        terminal::reset_signals();
        setsid();
        const pid_t watcher = fork();
        if (watcher == 0) {
            start_and_watch(start, outcome_ends[1], failure_ends[1]);
        }
        if (watcher < 0) {
            fail(failure_ends[1]);
        }
        _exit(0);
    }
    const int fork_error = errno;
    report_failure.reset(-1);
    report_outcome.reset(-1);
    if (child < 0) {
        return {.error = fork_error};
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    const int error = await_failure(failure.get());
    return {.error = error, .outcome = std::move(outcome)};
}

std::optional<EarlyFailure> early_failure(const terminal::Descriptor& outcome) {
    Report report;
    if (read(outcome.get(), &report, sizeof report) != static_cast<ssize_t>(sizeof report)) {
        return std::nullopt;
    }
    return EarlyFailure{report.status, std::string(report.line.data(),
                                                   std::min<std::size_t>(report.length, report.line.size()))};
}
