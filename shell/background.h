// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class CommandLine;

// Programs that run beside the tool and are not tied to its life. The tool's own commands, such as "open",
// are found before others.

/// Gives a line to sh in the background: the line with the ampersand is shown on the Message Board. So is why
/// no shell could be started for it and, when the command fails within two seconds, its exit status and the
/// last line that it wrote to its standard error.
void run_in_background(const CommandLine& line, std::string_view ampersand = " &");

/// The same without showing the line until it has failed.
void start_in_background(const CommandLine& line);
