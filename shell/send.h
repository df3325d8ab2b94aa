// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command_line.h"
#include "toolkit/notify.h"

#include <cstdint>

/// Where the line stands afterwards: in "Last Command:", or on the Message Board.
enum class Remember : std::uint8_t { nothing, last_command, message_board };

/// Gives a line to the user's shell, when that is ready, and has the shell's state shown afterwards. Returns
/// an empty message, or why it was not typed: nothing has happened then.
[[nodiscard]] Message send(const CommandLine& line, Remember remember = Remember::nothing);

/// The same at start-up, where nobody sees a footer: a refusal goes to the Message Board. The shell's state
/// is shown after so many milliseconds. Whether the line was typed.
bool send_at_startup(const CommandLine& line, int refresh);

/// Types a line that its user is to complete.
[[nodiscard]] Message type(const CommandLine& line);
