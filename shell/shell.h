// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"

#include <optional>
#include <string>
#include <string_view>

class Frame;

// The one door to the user's shell: whatever the tool types goes through here.

/// The user's login shell as it is to be started: named with a leading "-", in the start-up directory, with
/// the tool's own environment but for what tells of the terminal.
terminal::Program login_shell();

/// Types a text followed by a line feed. Returns an empty text, or why it was not typed: it holds a control
/// character, or is longer than the shell's terminal takes in one line.
[[nodiscard]] std::string type_line(std::string_view text);
/// The same; a refusal goes to the Message Board. Whether the text was typed.
bool type_or_report(const std::string& text);

/// Types a text that its user is to complete; refusals as above.
[[nodiscard]] std::string type_text(std::string_view text);
/// Types one control character: "U" for ^U.
void type_control(char letter);

/// The first line of the primary selection, fit to be typed: tabs become blanks. Where it is not, nothing,
/// and the frame's left footer says why: `none` when there is no selection.
std::optional<std::string> selected_line(Frame& frame, std::string_view none,
                                         std::string_view too_long = "Selection too long");

/// The same for what takes the selection as the name of one file: a tab refuses it too.
std::optional<std::string> selected_name(Frame& frame, std::string_view none,
                                         std::string_view too_long = "Selection too long");

/// The first line of what `get_seln` gives, tabs as blanks, and why it is not fit to be typed; that is empty
/// when it is.
struct SelectionLine {
    std::string text;
    std::string_view refusal;
};
SelectionLine selection_line();

/// The primary selection as text; empty when there is none or it is longer than 999 characters.
std::string get_seln();
