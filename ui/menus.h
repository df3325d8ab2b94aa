// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "browsers/notify.h"
#include "commands/clearcase/notify.h"
#include "settings/notify.h"
#include "toolkit/menu.h"

#include <array>

// The fixed menus.

inline constexpr std::array help_menu_items{
    MenuItem{"To Get Started", To_get_started},
    MenuItem{"About", About_window},
    MenuItem{"User Guide", User_guide},
    MenuItem{"Buttons", HelpMenuButtons},
};

inline constexpr std::array setup_menu_items{
    MenuItem{"Save Setup", Save_current_setup},
    MenuItem{"Bookmarks", SetupMenuBookmarks},
    MenuItem{"ClearCase", SetupMenuClearCase},
    MenuItem{"Command List", SetupMenuCommandList},
    MenuItem{"Command History", SetupMenuCommandHistory},
    MenuItem{"Default Settings", Default_settings_popup},
    MenuItem{"Environment", Environment_setup_window},
    MenuItem{"Label", Open_icon_label},
    MenuItem{"Process", Process_display_window},
    MenuItem{"Remote Hosts", SetupMenuRemoteHosts},
    MenuItem{"Status Display", SetupMenuStatusDisplay},
    MenuItem{"Text Editor", Text_editor_setup},
    MenuItem{"User Buttons", SetupMenuUserButtons},
};

inline constexpr std::array browse_menu_items{
    MenuItem{"File Tree", Start_file_tree},       MenuItem{"File Tree Full Size", BrowseMenuFullSize},
    MenuItem{"File List", Start_file_manager},    MenuItem{"Command History", BrowserMenuCommandHistory},
    MenuItem{"Message Board", Browse_mess_board}, MenuItem{"Notebook", BrowseMenuNoteBook},
};

inline constexpr std::array edit_menu_items{
    MenuItem{"Setup", Edit_menu_setup},
};

inline constexpr std::array user_menu_items{
    MenuItem{"Edit", Edit_user_menu},
    MenuItem{"Update", Generate_new_menu},
};

// Of the "File List Browser".

inline constexpr std::array file_operations_items{
    MenuItem{"Set Directory", File_menu_set_directory},
    MenuItem{"Get Directory", Get_directory},
    MenuItem{"Generate File List", FileListFileMenuGenerate},
    MenuItem{"Remove", File_menu_remove},
    MenuItem{"Select", File_menu_select},
    MenuItem{"Copy Remote", File_menu_copy_remote},
    MenuItem{"Copy", File_menu_copy},
    MenuItem{"Rename", File_menu_rename},
    MenuItem{"Open PDF", File_menu_open_pdf},
    MenuItem{"Open HTML", File_menu_open_html},
};

inline constexpr std::array load_menu_items{
    MenuItem{"Command", FileListLoadCommand},
    MenuItem{"Setup", FileListLoadSetup},
};

inline constexpr std::array clearcase_list_items{
    MenuItem{"Set Config Spec", FileListLoadConfigSpec},  MenuItem{"Checkin", ClearCaseMenu2Checkin},
    MenuItem{"Checkout", ClearCaseMenu2Checkout},         MenuItem{"History", ClearCaseMenu2History},
    MenuItem{"List FIles", ClearCaseMenu2ListFIles},      MenuItem{"Make Element", ClearCaseMenu2MakeElem},
    MenuItem{"Remove Element", ClearCaseMenu2RemoveElem}, MenuItem{"Uncheckout", ClearCaseMenu2Uncheckout},
};
