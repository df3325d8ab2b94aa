// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/message_item.h"

#include <memory>

/// "Text Editor Setup": which editor is started, and how its window looks.
struct TextEditorSetup : CommandFrame {
    static constexpr int user_defined = 6;  ///< the item "user def": "User Editor:" holds

    TextEditorSetup() : CommandFrame("Text Editor Setup", 2) {
        text_editor.set_value(user_defined);
        user_editor.set_tool_tip(
            "a command; one that begins with a variable, as $EDITOR, is typed into the shell");
    }

    Choice text_editor{
        panel, "Text Editor", {"TextEdit.app", "Smultron.app", "vi", "nedit", "gedit", "xemacs", "user def"}};
    TextField user_editor{panel, "User Editor:", nullptr, Place::line};
    NumberField x_coordinate{panel, "X coordinate:", 100};
    NumberField y_coordinate{panel, "Y coordinate:", 100};
    Heading size_pixels_heading{panel, "Window Size  (pixels)"};
    NumberField width_pixels{panel, {"Width:", "Width: (pixels)"}, 600};
    NumberField height_pixels{panel, {"Height:", "Height: (pixels)"}, 500};
    Heading size_chars_heading{panel, "Window Size (chars)"};
    NumberField width_chars{panel, {"Width:", "Width: (chars)"}, 80};
    NumberField height_chars{panel, {"Height:", "Height: (chars)"}, 40};
    Choice font_size{panel, "Font Size:", {"Small", "Medium", "Large", "Extra large"}};
    TextField font_name{panel, "Font Name:", nullptr, Place::line};
};

inline std::unique_ptr<TextEditorSetup> Orvik_popup3;
inline TextEditorSetup& text_editor_setup() { return *Orvik_popup3; }
