// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/tree/tree_canvas.h"
#include "ui/tree_menus.h"

#include <memory>

/// "File Tree Browser": directories as a tree.
struct FileTreeBrowser : CommandFrame {
    static constexpr int normal_width = 1000;
    static constexpr int normal_height = 650;

    FileTreeBrowser() : CommandFrame("File Tree Browser") {
        constexpr int small = 1;
        font_size.set_value(small);
        root_directory.set_text("$HOME");
        root_directory.set_display_length(48);
        bookmark_menu.set_tool_tip("Bookmarked directories as the root: none yet");
        resize(normal_width, normal_height);
    }

    Row drawing{panel};
    CheckBox show_dot_files{drawing, "Show Dot Files"};
    Choice font_size{drawing, "Font Size", {"Extra Small", "Small", "Large", "Extra Large"}};
    NumberField max_files{drawing, "Max Files", 500};
    Stretch behind_drawing{drawing};

    Row actions{panel};
    MenuButton select_menu{actions, "Select", Menu("Select Root", select_root_menu_items)};
    Button set_root{actions, {"Set Root", "Set Root (root directory)"}, FileTreeSetRoot};
    Button clear_tree{actions, "Clear Tree", Clear_tree};
    Button clear_all{actions, "Clear All", FileTreeClearAll};
    MenuButton bookmark_menu{actions, "BM", Menu({})};
    Button plot{actions, "Plot", FileTreePlot};
    MenuButton subversion_menu{actions, "Subversion", Menu("", subversion_items)};
    MenuButton clearcase_menu{actions, "ClearCase", Menu("ClearCase", clearcase_tree_items)};
    MenuButton more_menu{actions, "More", Menu("More", more_menu_items)};
    Stretch behind_actions{actions};

    Row root{panel, "Root Directory:"};
    TextField root_directory{root, {"", "Root Directory:"}, FileTreeSetRoot};
    Button lookup{root, "Lookup", FileTreeLookup};
    Button up{root, "Up", FileTreeUp};
    CheckBox directories_only{root, "Directories Only"};

    Row current{panel, "Current File:"};
    TextField current_file{current, {"", "Current File:"}};
    Button set_directory_button{current, "Set Directory", FileTreeSetDirectory};
    Button set_root_current_file{
        current, {"Set Root", "Set Root (current file)"}, FileTreeSetRootCurrentFile};

    Row tree{*this};
    ControlGrid side{tree, 2};
    ImageButton go_back{side, "go back", FileTreeGoBack, "Go to the parent of what is selected"};
    ImageButton go_forward{side, "go forward", FileTreeGoForward, "Go down again to where you came from"};
    ImageButton find_selection{side, "find selection", FileTreeFindSelection, "Scroll to what is selected"};
    ImageButton find_root{side, "find root", FileTreeFindRoot, "Scroll to the root of the tree"};
    ImageButton trace_back{side, "trace back", FileTreeTraceBack,
                           "Select all directories from here up to the root"};
    ImageButton select_all{side, "select all", FileTreeSelectAll,
                           "Select everything directly below the selected directory"};
    NewGroup scrolling{side};
    ImageButton scroll_upper_left{side, "scroll to upper left", FileTreeScrollUpperLeft,
                                  "Show the upper left corner of the tree"};
    ImageButton scroll_upper_right{side, "scroll to upper right", FileTreeScrollUpperRight,
                                   "Show the upper right corner of the tree"};
    ImageButton scroll_lower_left{side, "scroll to lower left", FileTreeScrollLowerLeft,
                                  "Show the lower left corner of the tree"};
    ImageButton scroll_lower_right{side, "scroll to lower right", FileTreeScrollLowerRight,
                                   "Show the lower right corner of the tree"};
    ImageButton scroll_right{side, "scroll right", FileTreeScrollRight, "Scroll 400 pixels to the right"};
    ImageButton scroll_left{side, "scroll left", FileTreeScrollLeft, "Scroll 400 pixels to the left"};
    ImageButton scroll_up{side, "scroll up", "tree_scroll_up", FileTreeScrollUp, "Scroll 200 pixels up"};
    ImageButton scroll_down{side, "scroll down", "tree_scroll_down", FileTreeScrollDown,
                            "Scroll 200 pixels down"};
    NewGroup windows{side};
    ImageButton refresh{side, "refresh", FileTreeRefresh, "Draw the tree anew (F5)"};
    ImageButton full_size{side, "full size", FileTreeFullSize,
                          "Make the browser large and put it over the main window"};
    ImageButton normal_size{side, "normal size", FileTreeNormalSize,
                            "Make the browser smaller and put it beside the main window"};
    ImageButton iconify_main_window{side, "iconify the main window", FileTreeIconifyMainWindow,
                                    "Close the main window to its icon"};
    ImageButton show_main_window{side, "show the main window", FileTreeShowMainWindow,
                                 "Open the main window again"};

    TreeCanvas canvas{tree,
                      "File Tree Browser tree",
                      {.click = FileTreeClick,
                       .double_click = FileTreeDoubleClick,
                       .selection = FileTreeSelectionChanged,
                       .refresh = FileTreeRefresh,
                       .rename = FileTreeRename,
                       .remove = FileTreeRemove,
                       .resize = resize_tree},
                      Menu("Options", options_menu_items),
                      "Set a root directory: type one above, or choose Select"};
};

inline std::unique_ptr<FileTreeBrowser> Orvik_popup21;
inline FileTreeBrowser& file_tree_browser() { return *Orvik_popup21; }
