// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Starts a command with the system's shell (POSIX, `system`) and does not wait for it: it is the shell's
/// child, so that it outlives this tool and leaves no zombie. The command line is shown on the Message Board.
void run_in_background(const std::string& command);
