// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "File Tree Browser": directories as a tree.
struct FileTreeBrowser : CommandFrame {
    FileTreeBrowser() : CommandFrame("File Tree Browser") {
        constexpr int small = 1;
        font_size.set_value(small);
        root_directory.set_text("$HOME");
        root_directory.set_display_length(48);
    }

    Row drawing{panel};
    CheckBox show_dot_files{drawing, "Show Dot Files"};
    Choice font_size{drawing, "Font Size", {"Extra Small", "Small", "Large", "Extra Large"}};
    NumberField max_files{drawing, "Max Files", 500};
    Stretch stretch{drawing};
    CheckBox directories_only{panel, "Directories Only"};
    TextField root_directory{panel, "Root Directory:"};
    TextField current_file{panel, "Current File:"};
};

inline std::unique_ptr<FileTreeBrowser> Orvik_popup21;
inline FileTreeBrowser& file_tree_browser() { return *Orvik_popup21; }
