// SPDX-License-Identifier: MIT
#pragma once

#include "app/current_command.h"
#include "toolkit/notify.h"
#include "toolkit/pane/pane.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Whose messages tell that no command was found in the terminal's line.
enum class CommandAsker : std::uint8_t { return_key, move_button, copy_button };

/// The command on a line of the terminal, as far as "Default Settings" tell where it begins.
CurrentCommand command_on(const TerminalPane::CurrentLine& line);
/// What stands between the prompt and this command at the end of a line of the terminal.
std::optional<std::string> text_before_command(const TerminalPane::CurrentLine& line,
                                               std::string_view command);
/// Why there is no command, in the words of the asker.
Message problem_message(CommandProblem problem, CommandAsker asker);

/// A command, or why there is none.
struct TakenCommand {
    std::string text;
    Message refusal;

    explicit operator bool() const { return refusal.empty(); }
};

/// The command on the terminal's current line, taken out of the shell's line: that is empty then.
TakenCommand take_typed_command(CommandAsker asker);
