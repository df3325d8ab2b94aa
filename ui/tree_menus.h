// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "commands/notify.h"
#include "toolkit/menu.h"

#include <array>

// The fixed menus of the "File Tree Browser".

inline constexpr std::array select_root_menu_items{
    MenuItem{"Current", SetRootCurrentDirectory},
    MenuItem{"Parent", FileTreeBrowserSerParent},
    MenuItem{"Selected", Set_directory_selected},
    MenuItem{"Home", Select_home_root},
};

/// On the canvas.
inline constexpr std::array options_menu_items{
    MenuItem{"File Operations :"},
    MenuItem{"Copy to Working", copy_file_to_work},
    MenuItem{"Move to working", move_file_to_work},
    menu_line,
    MenuItem{"Directory Operations :"},
    MenuItem{"Copy to Working", copy_dir_to_work},
    MenuItem{"Move to Working", move_dir_to_work},
    menu_line,
    MenuItem{"Auxiliary Operations :"},
    MenuItem{"Bookmark", add_bookmark},
    MenuItem{"Clear Branch", clear_branch},
    MenuItem{"File Status", display_status},
    MenuItem{"Select Files", select_files},
    MenuItem{"Set New Root", set_new_root},
};

/// What no other menu carries.
inline constexpr std::array more_menu_items{
    MenuItem{"Set Directory", set_directory},
    MenuItem{"Set Parent Root", set_parent_root},
    menu_line,
    MenuItem{"Browser Setup", FileTreeBrowserSetupOpen},
};
