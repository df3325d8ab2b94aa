// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

// Text routines that the command builders rest on. All work on bytes; none knows a window.

/// Gives one operand of a user's command when it is needed: the selection, or a selected file's name.
using OperandSource = std::function<std::string()>;

/// Fills the first placeholder of a user-defined command: "$$$" with the first line of the selection (left
/// alone when that is over 1000 bytes), else "???" with the name of the file selected in the file tree.
std::string fix_command(std::string_view command, const OperandSource& selection,
                        const OperandSource& tree_name);
/// Replaces the first occurrence of `needle`; an empty needle replaces nothing.
std::string replace_text(std::string_view text, std::string_view needle, std::string_view replacement);
/// Resolves ".", "..", "./..." and "../..." against `cwd`; any other path is returned unchanged.
std::string replace_dot(std::string_view path, std::string_view cwd);

/// Without any blank.
std::string remove_spaces(std::string_view text);
/// Without blanks, tabs and line feeds.
std::string remove_nontext(std::string_view text);
/// Without the blanks and tabs in front.
std::string remove_leading_blanks(std::string_view text);
/// Without the blanks (not tabs) at the end.
std::string remove_trailing_spaces(std::string_view text);
/// Without the "/" at the end, all of them: "/" becomes empty.
std::string remove_trailing_slashes(std::string_view text);
/// Everything from "/*" to the matching "*/", or to the end, becomes blanks.
std::string remove_comments1(std::string_view text);
/// Everything from "//" to the end of the line becomes blanks.
std::string remove_comments2(std::string_view text);
/// Cut at the first line feed.
std::string remove_nl(std::string_view text);
/// Without the line feeds in front, and cut at the next one.
std::string remove_line_feeds(std::string_view text);
/// With a backslash before every blank.
std::string ConvertSpaces(std::string_view text);
/// Case conversion of every ASCII letter; other bytes stay.
std::string convert_tolower(std::string_view text);
std::string convert_toupper(std::string_view text);

/// What follows the last "/", or the whole path.
std::string getfilename(std::string_view path);
/// What stands before the last "/", or the whole path when there is none.
std::string getdirname(std::string_view path);
