// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/scrolling_list.h"
#include "ui/menus.h"

#include <memory>

/// "File List Browser": the files of a directory as a list.
struct FileListBrowser : CommandFrame {
    FileListBrowser() : CommandFrame("File List Browser") {
        list.set_display_size(48, 16);
        constexpr int anywhere = 1;
        search.set_value(anywhere);
    }

    Row menus{panel};
    MenuButton load_menu{menus, "Load", Menu("Load", load_menu_items)};
    MenuButton bookmark_menu{menus, "BM", Menu({})};
    Stretch behind_menus{menus};

    ScrollingList list{panel, "File List Browser list"};
    TextField directory{panel, "Directory:"};
    TextField file_name{panel, "File Name:"};
    TextField selected{panel, "Selected:"};
    Choice search{panel, "Search", {"Beginning", "Anywhere", "End"}};
    Choice case_find{panel, {"Case", "Case (find)"}, {"No", "Yes"}};
    TextField text{panel, "Text:"};
    CheckBoxes display_files{panel, "Display Files", {"Starting", "Containing"}};
    Choice case_filter{panel, {"Case", "Case (filter)"}, {"No", "Yes"}};
    TextField start_string{panel, "Start String:"};
    TextField text_string{panel, "Text String"};
};

inline std::unique_ptr<FileListBrowser> Orvik_popup24;
inline FileListBrowser& file_list_browser() { return *Orvik_popup24; }
