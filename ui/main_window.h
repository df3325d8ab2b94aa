// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "browsers/notify.h"
#include "settings/notify.h"
#include "shell/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/file_watch.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/message_item.h"
#include "toolkit/pane/pane.h"
#include "toolkit/panel.h"
#include "toolkit/scrolling_list.h"
#include "toolkit/strip.h"
#include "toolkit/timer.h"
#include "ui/menus.h"

#include <memory>

/// The main window: the control panel above the terminal pane that runs the user's shell.
struct MainWindow : Frame {
    static constexpr int normal_width = 735;
    static constexpr int normal_height = 550;

    MainWindow() : Frame("Orvik Command Tool") {
        cwd.set_display_length(12);
        cwd.set_keys({.escape = leave_cwd});
        command.set_display_length(12);
        command.set_keys({BaseWindowPreviousCommand, BaseWindowNextCommand, BaseWindowLeaveCommand});
        command.take_pasted_commands();
        for (Button* button : {&user_button_1, &user_button_2, &user_button_3, &user_button_4, &user_button_5,
                               &user_button_6}) {
            button->share_width();
            button->leave_focus();
        }
        for (Button* button : {&show_waiting, &send_waiting, &drop_waiting}) {
            button->leave_focus();
        }
        show_waiting.set_tool_tip("All lines that wait; each can be dropped alone");
        send_waiting.set_tool_tip("Give the first line to whatever runs");
        drop_waiting.set_tool_tip("Drop all lines that wait");
        waiting_list.set_display_size(20, 4);
        waiting_rows.set_shown(false);
        history_menu.set_tool_tip("The commands given last");
        bookmark_menu.set_tool_tip("Bookmarks: none yet, see \"Bookmarks\" in the \"Setup\" menu");
        resize(normal_width, normal_height);
    }

    Panel control_panel{*this};
    Row menus{control_panel};
    MenuButton help_menu{menus, "Help", Menu("Help", help_menu_items)};
    MenuButton setup_menu{menus, "Setup", Menu("Setup", setup_menu_items)};
    MenuButton browse_menu{menus, "Browse", Menu("Browse", browse_menu_items)};
    MenuButton edit_menu{menus, "Edit", Menu("Edit", edit_menu_items)};
    PullRight edit_current{edit_menu, "Current", EditMenuCurrent};
    PullRight edit_home{edit_menu, "Home", Edit_menu_home};
    PullRight edit_startup{edit_menu, "Startup", Edit_menu_startup};
    MenuButton user_menu{menus, "User", Menu("User Definitions", user_menu_items)};
    MenuButton command_menu{menus, "Command", Menu("Commands"), BaseWindowCommandMenu};
    MenuButton bookmark_menu{menus, "BM", Menu({}), tell_of_missing_bookmarks};
    Stretch before_quit{menus};
    Button quit{menus, "Quit", Quit_button};

    TextField cwd{control_panel, "Cwd:", Cwd_text_line};

    Row actions{control_panel, Place::field};
    ImageButton directory_up{actions, "directory up", Directory_up_button,
                             "Go to the parent directory and list it (F4)"};
    ImageButton directory_down{actions, "directory down", Directory_down_button,
                               "Go to the selected directory and list it (F5)"};
    ImageButton execute_foreground{actions, "execute foreground", Execute_FG_button,
                                   "Run the program that the selection names"};
    ImageButton execute_background{actions, "execute background", Execute_BG_button,
                                   "Run the program that the selection names in the background"};
    ImageButton copy{actions, "copy", OrvikWindowCopyButton,
                     "Type the selection into the shell, for you to complete (F6)"};
    ImageButton copy_to_notebook{actions, "copy to notebook", CopyToMessageBoard,
                                 "Append the selection to the Notebook"};
    ImageButton bookmark{actions, "bookmark", BaseWindowBookmark, "Make a bookmark of the selected file"};
    ImageButton add_bookmark_button{actions, "add bookmark", BaseWindowAddBookmark,
                                    "Make a bookmark of the current directory"};
    ImageButton floating_command_line{actions, "floating command line", FloatingCommandLine,
                                      "Open the Command Window, a line for long commands"};
    ImageButton set_alias{actions, "set alias", BaseWindowSetAlias,
                          "Type the prompt hook again, in a shell within the shell"};
    ImageButton wide{actions, "wide", Set_wide_screen, "Make the window wide"};
    ImageButton normal{actions, "normal", Set_normal_width, "Give the window its first size again"};
    ImageButton tall{actions, "tall", Set_small_font, "Make the window high"};
    ImageButton clear_terminal{actions, "clear terminal", Set_large_font, "Empty the terminal"};
    ImageButton lookup_directories{actions, "lookup directories", BaseWindowLookup,
                                   "Look through directories step by step"};
    ImageButton command_list{actions, "command list", BaseWindowCommandList,
                             "Open the list of your ready-made commands"};
    Stretch behind_actions{actions};

    Row command_row{control_panel, "Command:"};
    TextField command{command_row, {"", "Command:"}, Command_text_line};
    MenuButton history_menu{command_row, "history", "history", Bottom_buttons_menu};
    ImageButton scroll_up{command_row, "scroll up", BaseWindowScrollUp,
                          "Fetch the previous command of the history (Up)"};
    ImageButton scroll_down{command_row, "scroll down", BaseWindowScrollDown,
                            "Fetch the next command of the history (Down)"};
    ImageButton last_command{command_row, "last command", BaseWindowLastCommand,
                             "Fetch the last command (Ctrl+L in the terminal)"};
    ImageButton clear_command{command_row, "clear command", BaseWindowClearCommand, "Empty the line"};
    ImageButton move{command_row, "move", BaseWindowMoveButton,
                     "Fetch the half-typed command from the terminal (Ctrl+X there)"};

    Row user_button_row{*this};
    Button user_button_1{user_button_row, "Button1", UserButton1};
    Button user_button_2{user_button_row, "Button2", UserButton2};
    Button user_button_3{user_button_row, "Button3", UserButton3};
    Button user_button_4{user_button_row, "Button4", UserButton4};
    Button user_button_5{user_button_row, "Button5", UserButton5};
    Button user_button_6{user_button_row, "Button6", UserButton6};

    Strip waiting{*this, "waiting lines", leave_waiting_lines};
    Row waiting_row{waiting};
    ShortenedText waiting_text{waiting_row, "waiting lines"};
    Button show_waiting{waiting_row, "Show", ShowWaitingLines};
    Button send_waiting{waiting_row, "Send Now", SendFirstWaitingLine};
    Button drop_waiting{waiting_row, "Drop", DropWaitingLines};
    Row waiting_rows{waiting};
    ScrollingList waiting_list{waiting_rows, "waiting lines list"};
    Button drop_one_waiting{waiting_rows, "Drop Line", DropWaitingLine};
    Ticker waiting_watch{*this, 50, look_after_waiting_lines};
    FileWatch status_watch{*this, follow_status_file};
    Ticker hook_watch{*this, 1000, look_for_report};

    TerminalPane termpane{*this, "terminal"};
};

inline std::unique_ptr<MainWindow> Orvik_window1;
inline MainWindow& main_window() { return *Orvik_window1; }
