// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/panel.h"
#include "toolkit/terminal_pane.h"
#include "ui/menus.h"

#include <memory>

/// The main window: the control panel above the terminal pane that runs the user's shell.
struct MainWindow : Frame {
    static constexpr int normal_width = 735;
    static constexpr int normal_height = 550;

    MainWindow() : Frame("Orvik Command Tool") {
        cwd.set_display_length(12);
        resize(normal_width, normal_height);
    }

    Panel control_panel{*this};
    Row top_row{control_panel};
    MenuButton help_menu{top_row, "Help", Menu("Help", help_menu_items)};
    MenuButton setup_menu{top_row, "Setup", Menu("Setup", setup_menu_items)};
    MenuButton browse_menu{top_row, "Browse", Menu("Browse", browse_menu_items)};
    MenuButton edit_menu{top_row, "Edit", Menu("Edit", edit_menu_items)};
    TextField cwd{top_row, "Cwd:"};
    TerminalPane termpane{*this, "terminal"};
};

inline std::unique_ptr<MainWindow> Orvik_window1;
inline MainWindow& main_window() { return *Orvik_window1; }
