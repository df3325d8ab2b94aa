// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/frame.h"

#include <memory>

/// "File Tree Browser Setup": how files added from other windows are drawn.
struct FileTreeBrowserSetup : CommandFrame {
    FileTreeBrowserSetup() : CommandFrame("File Tree Browser Setup") {
        constexpr int small = 1;
        font_size.set_value(small);
    }

    Choice font_size{panel, "Font Size", {"Extra small", "Small", "Medium", "Large"}};
};

inline std::unique_ptr<FileTreeBrowserSetup> Orvik_popup25;
inline FileTreeBrowserSetup& file_tree_browser_setup() { return *Orvik_popup25; }
