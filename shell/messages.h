// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class Frame;
class TextPane;

/// Appends a text to a text pane and scrolls it into view.
void display_message(TextPane& pane, std::string_view text);
/// Appends a text to the Message Board.
void report(std::string_view text);
/// Puts the insertion point at the end of a text pane and scrolls it into view.
void show_caret(TextPane& pane);
/// Empties a text pane; edits are discarded.
void clear_window(TextPane& pane);
/// Says in the frame's left footer why a directory could not be changed, by the error number (errno) of the
/// failed call; numbers without a text leave the footer as it was.
void display_error_message(Frame& frame, int error);
