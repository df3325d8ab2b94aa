// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

class QPushButton;

/// A push button with a label.
class Button {
  public:
    Button(Container& parent, Label label, Notify notify);
    /// Makes it the window's default button, drawn as such: Return in a field that does not act on it itself
    /// presses it.
    void set_default();
    /// Another label, which is the accessible name too.
    void set_label(std::string_view label);
    /// Takes as much width as the other buttons of its row that do so, however long its label is.
    void share_width();
    /// What it does, shown under the pointer and told by assistive programs; empty for nothing.
    void set_tool_tip(std::string_view text);
    /// A click leaves the keyboard where it is; the Tab key still gets to the button.
    void leave_focus();
    void set_shown(bool shown);

  private:
    QPushButton* widget_;
};

/// A push button with a picture; its name is its tool tip too. A click on it leaves the keyboard where it is.
class ImageButton {
  public:
    /// The picture is a file of that name, without ".svg", in the picture directory.
    ImageButton(Container& parent, std::string_view accessible_name, std::string_view picture, Notify notify);
    /// The picture's name is the button's with "_" for blanks.
    ImageButton(Container& parent, std::string_view accessible_name, Notify notify);

    /// Where the pictures of all image buttons made later are. Until it is known they have none.
    static void set_picture_directory(std::string_view path);
};
