// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>
#include <termios.h>
#include <unistd.h>

namespace terminal {

/// A program to be started on a pty.
struct Program {
    std::string path;                      ///< absolute path of the executable
    std::vector<std::string> arguments;    ///< from argv[0] on
    std::vector<std::string> environment;  ///< the whole environment, "NAME=value"
    std::string directory;                 ///< where it starts
};

/// How a terminal is used at a moment, as the kernel tells it.
struct TerminalUse {
    bool reads_lines = true;  ///< canonical mode (ICANON): the kernel cuts a line at 4,095 bytes
    bool echoes = true;       ///< what is typed is shown (ECHO): not while a program asks for a password
    /// Return is given as a line feed (ICRNL). Line editors turn that off, as do most programs that take the
    /// whole screen; pagers and questions for one key leave it on.
    bool translates_return = true;
    bool locks_on_control_s = true;  ///< ^S stops the output until ^Q comes (IXON)
    pid_t group = -1;  ///< the foreground process group; 0 or -1 where no program has the terminal

    bool operator==(const TerminalUse&) const = default;
};

/// A pseudo terminal's master side with the program that runs on the other. Non-blocking. Closing it hangs
/// the program up. The program inherits descriptors 0, 1 and 2 only, default signal handling, and the pty as
/// its controlling terminal.
class Pty {
  public:
    /// Starts the program. On failure to make the pty or the process: nullptr, and `error` says why. A
    /// program that cannot be executed says so on its own terminal and ends with status 127.
    static std::unique_ptr<Pty> start(const Program& program, Size size, std::string& error);
    ~Pty();
    Pty(const Pty&) = delete;
    Pty& operator=(const Pty&) = delete;

    /// For waiting until there is something to read or room to write.
    [[nodiscard]] int descriptor() const { return master_; }
    /// Readable once the program has ended; -1 where the system has no process descriptors.
    [[nodiscard]] int exit_descriptor() const { return process_; }
    [[nodiscard]] pid_t child() const { return child_; }

    enum class ReadState : std::uint8_t { data, nothing_yet, hung_up };
    struct ReadResult {
        ReadState state;
        std::size_t size;
    };
    ReadResult read(std::span<char> buffer);

    /// Queues text for the program and writes what the pty takes. Keeps order, loses nothing: the rest goes
    /// with later `flush` calls, when the descriptor has room.
    void write(std::string_view bytes);
    void flush();
    [[nodiscard]] std::size_t pending() const { return queue_.size() - sent_; }

    void resize(Size size, int pixel_width, int pixel_height);

    /// The wait status of the program, once it has ended.
    std::optional<int> exit_status();

    /// The line discipline's special characters in force (interrupt, erase, ...), without disabled ones.
    [[nodiscard]] std::string control_characters() const;
    [[nodiscard]] TerminalUse use() const;
    /// A program reads a line without showing it.
    [[nodiscard]] bool asks_for_password() const;

  private:
    Pty() = default;
    int master_ = -1;
    int process_ = -1;
    pid_t child_ = -1;
    std::optional<int> status_;
    std::string queue_;
    std::size_t sent_ = 0;
};

}  // namespace terminal
