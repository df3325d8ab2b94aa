// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

class CommandLine;

// Programs that run beside the tool and are not tied to its life.

/// Gives a line to sh in the background: the line with the ampersand is shown on the Message Board, and so is
/// why no shell could be started for it. What becomes of the command is not watched.
void run_in_background(const CommandLine& line, std::string_view ampersand = " &");

/// The same without showing the line.
void start_in_background(const CommandLine& line);

/// Starts the system's shell on a command line and returns at once: 0, or the error number (errno) of what
/// failed. The shell has a session of its own and this process for no parent, so it outlives the tool, gets
/// no hang-up from its terminal and leaves no zombie. Its input is empty; of the descriptors it inherits the
/// standard output and error only, of the signals none blocked or ignored.
[[nodiscard]] int start_detached_shell(const std::string& command_line);
