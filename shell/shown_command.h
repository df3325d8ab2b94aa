// SPDX-License-Identifier: MIT
#pragma once

#include "shell/current_command.h"
#include "toolkit/pane/pane.h"

#include <optional>
#include <string>
#include <string_view>

/// The command on a line of the terminal, as far as "Default Settings" tell where it begins.
CurrentCommand command_on(const TerminalPane::CurrentLine& line);
/// What stands between the prompt and this command at the end of a line of the terminal.
std::optional<std::string> text_before_command(const TerminalPane::CurrentLine& line,
                                               std::string_view command);

/// Whether the user is typing a command just now: it stands behind the prompt, or is about to. Where no
/// prompt is to be found, the keys tell.
[[nodiscard]] bool is_command_half_typed();
