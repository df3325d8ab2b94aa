// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/frame.h"

#include <memory>

/// "Edit Menu Setup": what the directory menus of "Edit" show.
struct EditMenuSetup : CommandFrame {
    EditMenuSetup() : CommandFrame("Edit Menu Setup") {
        constexpr unsigned dot_files = 1;
        hide.set_value(dot_files);
    }

    CheckBoxes hide{panel, "Hide", {"Dot Files", "Directories"}};
    Choice update_directory{panel, "Update Directory", {"All", "Current"}};
};

inline std::unique_ptr<EditMenuSetup> Orvik_popup5;
inline EditMenuSetup& edit_menu_setup() { return *Orvik_popup5; }
