// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

class Frame;

// The user's text editor, as "Text Editor Setup" says at the time of the call.

/// Options for vi in a window of the shell tool: its place and size in pixels, and its font.
std::string textedit_command();
/// Options for nedit: size and place of its window in pixels, and its font.
std::string nedit_command();
/// The same for gedit, with the size in characters. No editor is given these.
std::string gedit_command();

/// The command that opens a file in the editor, ready for the " &" behind it. `word` is the file's name as
/// the shell that is to read the command must be given it: see `script_word` and `shell_word` in
/// shell/quoting.h. Nothing while "user def" is chosen and "User Editor:" is empty: "User editor not
/// specified".
[[nodiscard]] std::optional<std::string> editor_command(std::string_view word);

/// Opens a file in the editor and shows the command on the Message Board; the frame's left footer tells when
/// no editor is specified.
void edit_file(Frame& frame, const std::string& path);
/// The same, but nobody is told anything.
void edit_file_silently(const std::string& path);
