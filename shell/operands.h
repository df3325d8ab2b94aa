// SPDX-License-Identifier: MIT
#pragma once

#include "shell/quoting.h"
#include "shell/text.h"

#include <optional>
#include <string>
#include <string_view>

// The file name that stands for "???" in a user's commands.

/// Says where the name of the file selected in the file tree comes from: the file tree does.
void set_tree_name_source(OperandSource source);
/// That file's name; empty while no file is selected, or there is no file tree.
std::string selected_tree_name();

/// A file name as it may stand in a command line behind `before`: as one word of the shell or, where its user
/// has just opened a quote, as a part of his. Only an ordinary name where it is, or may be, read a second
/// time
/// (`eval`, `sh -c`, further on in a quote, in arithmetic, in substitutions); nothing where the shell would
/// take it for something else, as behind a "$".
std::optional<std::string> operand_behind(std::string_view before, std::string_view name, const Shell& shell);

/// Whether an operand may stand behind a user's command as a word of its own, quoted where it must be. It may
/// not where a quote is open, nor, unless it is an ordinary one, where the command reads it as a command.
bool takes_word_behind(std::string_view command, std::string_view operand, const Shell& shell);

/// A selected file name with its home directory in full where it begins with "~" or "~user": quoted, the sign
/// would mean nothing to the shell.
std::string with_home_directory(std::string_view name);

/// A path as its user wrote it: the file of that very name if there is one, else with "~" and variables
/// expanded.
std::string path_meant(const std::string& path);

/// The message for a name that cannot be typed into the user's shell.
std::string name_refusal(std::string_view name);
