// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// Whose messages tell that no command was found in the terminal's line.
enum class CommandAsker : std::uint8_t { return_key, move_button, copy_button };

/// The command on the terminal's current line, as far as "Default Settings" tell where it begins. Nothing,
/// and the left footer of the asker's window says why, when there is none.
std::optional<std::string> typed_command(CommandAsker asker);
/// The same, taken out of the shell's line: that is empty then.
std::optional<std::string> take_typed_command(CommandAsker asker);
