// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class Frame;
class TextField;

/// Types a line and has the shell's state shown afterwards; whether it was typed. The frame's left footer is
/// cleared, or tells why it was not.
bool send_line(Frame& frame, std::string_view line);

/// Sends the command in a field and files it; the frame's left footer tells why it was not sent.
void send_command_field(Frame& frame, TextField& field);

/// Whose messages tell that no command was found in the terminal's line.
enum class CommandAsker : std::uint8_t { return_key, move_button, copy_button };

/// The command on the terminal's current line, as far as "Default Settings" tell where it begins. Nothing,
/// and the left footer of the asker's window says why, when there is none.
std::optional<std::string> typed_command(CommandAsker asker);
/// The same, taken out of the shell's line: that is empty then.
std::optional<std::string> take_typed_command(CommandAsker asker);

/// Takes the command out of the shell's line: into the "Command Window" when "Open Long Command Window" is
/// on, else into "Command:".
void move_typed_command(CommandAsker asker);

/// Puts "Last Command:" into "Command:".
void recall_last_command();
