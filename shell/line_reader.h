// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/use.h"

#include <cstdint>
#include <functional>
#include <string>

#include <sys/types.h>

/// What reads command lines in a terminal.
enum class Reader : std::uint8_t {
    none,           ///< a program that takes what is typed for its own input
    line_editor,    ///< a program with a line editor of its own: a debugger, an interpreter
    far_shell,      ///< a shell that cannot be looked at: on another machine, another user's
    near_shell,     ///< a shell in the shell
    working_shell,  ///< the shell itself, between two command lines or in a command of its own, such as
                    ///< "read"
    shell,          ///< the shell itself
};

/// Whether what is typed comes to a shell.
[[nodiscard]] constexpr bool is_shell(Reader reader) { return reader >= Reader::far_shell; }
/// Whether a command line is taken for one.
[[nodiscard]] constexpr bool is_ready_for_line(Reader reader) {
    return reader != Reader::none && reader != Reader::working_shell;
}

/// Tells from outside what reads command lines in a terminal: from how it is used, and by the names of the
/// programs.
class LineReader {
  public:
    using NameOf = std::function<std::string(pid_t group)>;

    explicit LineReader(NameOf name_of) : name_of_(std::move(name_of)) {}

    /// Another shell has been started: nothing is known of it.
    void shell_started() { editor_.clear(); }
    [[nodiscard]] Reader look(const PaneUse& use);

  private:
    [[nodiscard]] Reader in_front(const PaneUse& use);
    [[nodiscard]] Reader nested(const PaneUse& use) const;

    NameOf name_of_;
    std::string editor_;  ///< the shell that has been seen in its line editor; another may take its place
};
