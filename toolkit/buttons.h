// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/panel.h"

class LabelButton;

/// A push button with a label, which is shown shortened where it does not fit, and whole in the tool tip.
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
    /// Drawn as one that has nothing to do yet; a click still tells so.
    void set_unset(bool unset);

  private:
    LabelButton* widget_;
};

/// A push button with a picture. A click on it leaves the keyboard where it is. The tool tip says what it
/// does in a sentence, with the key that does the same.
class ImageButton {
  public:
    /// The picture is a file of that name, without ".svg", in the picture directory.
    ImageButton(Container& parent, std::string_view accessible_name, std::string_view picture, Notify notify,
                std::string_view tool_tip);
    /// The picture's name is the button's with "_" for blanks.
    ImageButton(Container& parent, std::string_view accessible_name, Notify notify,
                std::string_view tool_tip);

    /// Where the pictures of all image buttons made later are. Until it is known they have none.
    static void set_picture_directory(std::string_view path);
};
