// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
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
        list.set_keys({{ListKey::Key::backspace, FileListGoUp},
                       {ListKey::Key::f2, FileListNewName},
                       {ListKey::Key::f5, FileListAgain},
                       {ListKey::Key::remove, File_menu_remove}});
        list.set_context_menu(Menu("File Operations", file_operations_items));
        columns = &list.context_menu().add_pull_right("Columns", Menu({}), FileListColumnMenu);
    }

    static constexpr int case_yes = 1;

    Row menus{panel};
    MenuButton file_menu{menus, "File", Menu("File Operations", file_operations_items)};
    Button execute{menus, "Execute", FileListBrowserExecute};
    MenuButton load_menu{menus, "Load", Menu("Load", load_menu_items)};
    MenuButton bookmark_menu{menus, "BM", Menu({})};
    MenuButton clearcase_menu{menus, "ClearCase", Menu("", clearcase_list_items)};
    Stretch behind_menus{menus};

    Row actions{panel};
    ImageButton edit{actions, "edit", FileListBrowserEdit, "Open the file in your text editor"};
    ImageButton document{actions, "document", "list_document", FileListBrowserDocument,
                         "Open the file as a document, with the command in OPENFRAME"};
    ImageButton print{actions, "print", FileListBrowserPrint, "Print the file"};
    ImageButton home{actions, "home", FileListBrowserHome, "List your home directory"};
    ImageButton config_spec{actions, "config spec", FileListBrowserConfigSpec,
                            "List the directory of the config specs"};
    ImageButton current{actions, "current", FileListBrowserCurrent,
                        "List the current directory of the shell"};
    ImageButton bookmark{actions, "bookmark", FileListBrowserBookmark,
                         "Make a bookmark of the file or directory"};
    ImageButton permissions{actions, "permissions", FileListBrowserPermissions,
                            "Show the owner, size, times and permissions of the file"};
    ImageButton set_root{actions, "set root", FileListBrowserSetRoot,
                         "Make this directory the root of the file tree"};
    ImageButton copy_to_working{actions, "copy to working", FileListBrowserCopyToWorking,
                                "Copy the file into the current directory of the shell"};
    ImageButton copy_to_tree{actions, "copy to tree", FileListBrowserCopyToTree,
                             "Copy the file into the directory selected in the file tree"};
    ImageButton head{actions, "head", FileListBrowserHead,
                     "Show the first ten lines of the file on the Message Board"};
    Stretch behind_actions{actions};

    ScrollingList list{panel, "File List Browser list", File_manager_list};
    TextField directory{panel, "Directory:", FileListBrowserDirectory};
    TextField file_name{panel, "File Name:"};
    TextField selected{panel, "Selected:"};

    Row searching{panel, "Search"};
    Choice search{searching, {"", "Search"}, {"Beginning", "Anywhere", "End"}};
    Choice case_find{searching, {"Case", "Case (find)"}, {"No", "Yes"}};
    Button find{searching, "Find", FileListBrowserFind};
    Button next{searching, "Next", FileListBrowserNext};
    TextField text{panel, "Text:"};

    Row filtering{panel, "Display Files"};
    CheckBoxes display_files{filtering, {"", "Display Files"}, {"Starting", "Containing"}};
    Choice case_filter{filtering, {"Case", "Case (filter)"}, {"No", "Yes"}};
    Button display_all{filtering, "Display All", FileListBrowserDisplayAll};
    Button filter{filtering, "Filter", FileListBrowserFilter};
    ImageButton cd{filtering, "cd", FileListBrowserCd, "Change the shell to this directory"};
    TextField start_string{panel, "Start String:"};
    TextField text_string{panel, "Text String"};

    Menu* columns = nullptr;  ///< in the list's context menu
};

inline std::unique_ptr<FileListBrowser> Orvik_popup24;
inline FileListBrowser& file_list_browser() { return *Orvik_popup24; }
