// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shown_command.h"
#include "toolkit/notify.h"

#include <cstdint>
#include <string>

/// Whose messages tell that no command was found in the terminal's line.
enum class CommandAsker : std::uint8_t { return_key, move_button, copy_button };

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
