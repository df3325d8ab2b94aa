// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/menu.h"

#include <array>

// The main window's fixed menus.

inline constexpr std::array setup_menu_items{
    MenuItem{"Default Settings", Default_settings_popup},
    MenuItem{"Environment", Environment_setup_window},
    MenuItem{"Label", Open_icon_label},
    MenuItem{"Process", Process_display_window},
    MenuItem{"Status Display", SetupMenuStatusDisplay},
};

inline constexpr std::array browse_menu_items{
    MenuItem{"Message Board", Browse_mess_board},
};
