// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command_line.h"
#include "toolkit/notify.h"

#include <optional>
#include <string>
#include <string_view>

// The user's text editor, as "Text Editor Setup" says at the time of the call.

/// Appends options for vi in a window of the shell tool: its place and size in pixels, and its font.
void textedit_command(CommandLine& line);
/// Options for nedit: size and place of its window in pixels, and its font.
void nedit_command(CommandLine& line);
/// The same for gedit, with the size in characters. No editor is given these.
void gedit_command(CommandLine& line);

/// What is said when a file cannot be opened because "user def" is chosen and "User Editor:" is empty.
inline const Message no_editor = "User editor not specified";

/// Whether one is chosen.
[[nodiscard]] bool has_editor();

/// Who opens a file. The file tree puts another blank behind the first editor.
enum class EditorAsker : bool { usual, file_tree };

/// The command that opens a file in the editor, ready for the " &" behind it where it needs no terminal;
/// nothing while there is none.
[[nodiscard]] std::optional<CommandLine> editor_line(std::string_view path,
                                                     EditorAsker asker = EditorAsker::usual);

/// Whether the editor is one for the terminal: "User Editor:" begins with a variable, and the command is the
/// shell's to run.
[[nodiscard]] bool editor_needs_terminal();

/// Opens a file in the editor: shows the command on the Message Board, or types it into the shell.
[[nodiscard]] Message edit_file(const std::string& path, EditorAsker asker = EditorAsker::usual);
/// The same, but nobody is told anything.
void edit_file_silently(const std::string& path);
