// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

/// What a process is started with.
struct Command {
    std::vector<std::string> arguments;  ///< the first is the program's path
    std::map<std::string, std::string> environment;
    std::filesystem::path directory;
    std::filesystem::path output;  ///< a file that takes the standard output and error
};

/// A child process in a session of its own, without a standard input. It is killed at the latest when this
/// object ends.
class Process {
  public:
    explicit Process(const Command& command);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    [[nodiscard]] pid_t pid() const { return pid_; }
    /// The status as the shell tells it: the exit status, or 128 and the number of the signal; nothing while
    /// the process runs.
    [[nodiscard]] std::optional<int> status() const;
    /// Waits for the end of the process; nothing when it still runs at the deadline.
    [[nodiscard]] std::optional<int> wait_for_end(std::chrono::milliseconds deadline) const;
    void signal(int number) const;

  private:
    pid_t pid_ = -1;
    mutable std::optional<int> status_;  ///< once it has been asked for
};
