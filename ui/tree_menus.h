// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "commands/clearcase/notify.h"
#include "commands/notify.h"
#include "commands/subversion/notify.h"
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
    MenuItem{"Compare", vcompare_file},
    MenuItem{"Concatenate", concatenate_files},
    MenuItem{"Copy", copy_file},
    MenuItem{"Copy Remote", copy_file_remote},
    MenuItem{"Copy and Rename", copy_rename_file},
    MenuItem{"Copy from File List", copy_file_from_list},
    MenuItem{"Copy to Selected", copy_to_selected},
    MenuItem{"Copy to Working", copy_file_to_work},
    MenuItem{"Header", header_file},
    MenuItem{"Link (Symbolic)", add_link_symbolic},
    MenuItem{"List", list_file},
    MenuItem{"Move", move_file},
    MenuItem{"Move to working", move_file_to_work},
    MenuItem{"New", add_file},
    MenuItem{"Open HTML File", open_html},
    MenuItem{"Open JPG File", open_jpg},
    MenuItem{"Open PDF File", open_pdf},
    MenuItem{"Open in Open Office", open_word},
    MenuItem{"Print", print_file},
    MenuItem{"Rename", rename_file},
    MenuItem{"Remove", delete_file},
    MenuItem{"Replace", replace_file},
    MenuItem{"Run Mac Program", run_fg_file},
    MenuItem{"Run Linux Program", run_bg_file},
    MenuItem{"Execute Unix Command", execute_command},
    menu_line,
    MenuItem{"Directory Operations :"},
    MenuItem{"Copy to Working", copy_dir_to_work},
    MenuItem{"Move to Working", move_dir_to_work},
    MenuItem{"New", add_directory},
    MenuItem{"Rename", rename_directory},
    MenuItem{"Remove", delete_directory},
    menu_line,
    MenuItem{"Auxiliary Operations :"},
    MenuItem{"Bookmark", add_bookmark},
    MenuItem{"Clear Branch", clear_branch},
    MenuItem{"File Status", display_status},
    MenuItem{"Pack/Unpack File(s)", make_tar_file},
    MenuItem{"Select Files", select_files},
    MenuItem{"Set New Root", set_new_root},
};

inline constexpr std::array clearcase_tree_items{
    MenuItem{"Display Config Spec", ClearCasemenuDisplayConfigSpec},
    MenuItem{"Set Config Spec", ClearcaseMenuSetConfigSpec},
    MenuItem{"Set Default Config Spec", ClearCaseMenuSetConfigSpecDefault},
    MenuItem{"Checkin", ClearCaseMenuCheckInNoCom},
    MenuItem{"Checkout", ClearCaseMenuCheckOut},
    MenuItem{"Copy Files to Vob", ClearcaseMenuCopyFilesToVob},
    MenuItem{"History", ClearCaseMenuhistory},
    MenuItem{"List Files", ClearCaseMenuListFiles},
    MenuItem{"List All Files", ClearCaseMenuListAllFiles},
    MenuItem{"List Checkout (All)", ClearCaseMenuListCo},
    MenuItem{"List Checkout (Mine)", ClearcaseMenuListCheckoutMine},
    MenuItem{"List Private", ClearcaseMenuListPrivate},
    MenuItem{"Make Directory", FileTreeClearCaseMenuMakeDir},
    MenuItem{"Make Element", ClearCaseMenuMakeElement},
    MenuItem{"Make Element (No comment)", ClearcaseMenuMakeElementNc},
    MenuItem{"Move File", ClearCaseMoveFile},
    MenuItem{"Remove Element", FileTreeClearCaseMenuRemovElem},
    MenuItem{"Rename File", ClearCaseMenuRenameFile},
    MenuItem{"Set Label", ClearCaseMenu1SetLabel},
    MenuItem{"Uncheckout", ClearCaseMenuUncheckout},
};

inline constexpr std::string_view opens_checkout = "Opens Checkout from Repository";
inline constexpr std::array subversion_items{
    MenuItem{"Add", SubversionMenuAdd},
    MenuItem{"Branch/Tag", SubversionMenuBranch},
    MenuItem{"Checkout", SubversionMenuCheckout},
    MenuItem{"Commit", SubversionMenuCommit},
    MenuItem{"Copy", SubversionMenuCopy, opens_checkout},
    MenuItem{"Delete", SubversionMenuDelete},
    MenuItem{"Diff", SubversionMenuDiff},
    MenuItem{"Log", SubversionMenuLog},
    MenuItem{"Move", SubversionMenuMove, opens_checkout},
    MenuItem{"Revert", SubversionMenuRevert},
    MenuItem{"Status (Changes)", SubversionMenuStatusChanges},
    MenuItem{"Status (All)", SubversionMenuStatusAll},
    MenuItem{"Update", SubversionMenuUpdate},
};

/// What no other menu carries.
inline constexpr std::array more_menu_items{
    MenuItem{"Edit", edit_file},
    MenuItem{"Page", archive_files},
    MenuItem{"Compare (diff)", compare_file},
    MenuItem{"Link (Hard)", add_link_hard},
    MenuItem{"Open FrameMaker File", open_framemaker},
    MenuItem{"Open SGML File", open_tagtool},
    MenuItem{"Open in Zebra", open_in_zebra},
    MenuItem{"Set Directory", set_directory},
    MenuItem{"Set Parent Root", set_parent_root},
    MenuItem{"Terminal Here", start_xterm},
    menu_line,
    MenuItem{"Send Email", send_file},
    MenuItem{"Remote File Transfer", remote_file_transfer},
    MenuItem{"Copy to Public", copy_to_public},
    MenuItem{"USB Memory", UsbMemoryOpen},
    MenuItem{"Browser Setup", FileTreeBrowserSetupOpen},
};
