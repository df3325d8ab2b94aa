// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/descriptor.h"

#include <optional>
#include <string>

/// A shell that has been started, or why none could be.
struct DetachedShell {
    int error = 0;  ///< the error number (errno) of what failed
    /// Can be read as soon as it is known whether the shell has failed early; closed by whoever holds this.
    terminal::Descriptor outcome{-1};
};

/// Starts the system's shell on a command line and returns at once. The shell has a session of its own and
/// this process for no parent, so it outlives the tool, gets no hang-up from its terminal and leaves no
/// zombie. Its input is empty; of the signals none is blocked or ignored. It inherits the standard output and
/// no other descriptor; what it writes to its standard error is passed on to the tool's, for as long as
/// anybody writes there. `programs`, if it is not empty, is a directory that is searched before those of
/// PATH.
[[nodiscard]] DetachedShell start_detached_shell(const std::string& command_line,
                                                 const std::string& programs = {});

/// How a shell has failed: its exit status, 128 and the signal's number where a signal has ended it, and the
/// last line that was written to its standard error.
struct EarlyFailure {
    int status = 0;
    std::string last_line;
};

/// What an outcome holds: nothing when the shell has ended well, or not within two seconds.
std::optional<EarlyFailure> early_failure(const terminal::Descriptor& outcome);
