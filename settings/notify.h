// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

struct ListEvent;

// The notify procedures of settings/, bound to controls by the windows and menus in ui/.

// "Setup" menu.
Message Save_current_setup();

// "Add / Rename / Save".
Message Save_setup_button();

// "Edit" menu: each fills the menu of its item. Then what their entries call.
Message EditMenuCurrent();
Message Edit_menu_home();
Message Edit_menu_startup();
void my_action_proc(const std::string& path);

// "User" menu, and what the entries of the menu definition file call.
Message Edit_user_menu();
Message Generate_new_menu();
Message notify_user_defined(const std::string& command);

// "Command" menu: fills it; then what its entries call.
Message BaseWindowCommandMenu();
Message my_action_proc2(const std::string& path);

// "File List Browser": the button that makes a bookmark, and the "Load" menu.
Message FileListBrowserBookmark();
Message FileListLoadCommand();
Message FileListLoadSetup();

// "Command List Manager", and the main window's button for it.
void BaseWindowCommandList();
Message Edit_commands_file();
Message Update_commands_list();
Message Command_scrolling_list(const ListEvent& event);

// "Command List Setup".
void EnvironmentSetupCommandsDir();
void Commands_file_loaded();
void CommandListFollowWindow();
void CommandListSetupWindowWidth();

// "Bookmarks".
/// Before the main window's menu of bookmarks opens, which an empty one does not.
Message tell_of_missing_bookmarks();
void BookmarkSetupFileName();
Message BookmarksUpdate();
Message BookmarkFIleEdit();

// "Bookmark Definition", and the main window's buttons for it.
Message BaseWindowBookmark();
Message BaseWindowAddBookmark();
void BookmarkDefinitionName();
void BookmarkDefinitionFile();
void BookmarkDefinitionType();
Message BookmarkDefinitionAddBookmark();

// What the entries of the bookmark menus call.
Message SetBookmarkDir(const std::string& path);
void OpenBookmarkSource(const std::string& path);
Message RunBookmarkExec(const std::string& path);
Message RunBookmarkScript(const std::string& path);
Message OpenBookmarkHTML(const std::string& path);
Message OpenBookmarkPDF(const std::string& path);
Message OpenBookmarkOther(const std::string& path);

// "Command History Manager".
Message CommandHistoryPosition();
Message CommandHistoryBegin();
Message CommandHistoryEnd();
Message CommandHistorySaveButton();
Message EditCommandHistory();
Message UpdateCommandHistory();
Message CommandHistorySort();
Message CommandHistoryFind();
Message CommandHistoryFindNext();
Message CommandHistoryFindText();
Message CommandHistoryList(const ListEvent& event);

// "Command History Setup".
void CommandHistorySetupInsertDup();

// The main window's history button, and the items of its menu.
Message Bottom_buttons_menu();
Message my_action_proc3(const std::string& item);

// The main window's user buttons.
Message UserButton1();
Message UserButton2();
Message UserButton3();
Message UserButton4();
Message UserButton5();
Message UserButton6();

// "User Buttons".
void SetupUserButtons();
void UserButtonsUpdate();
void UserButtonsLabel1();
void UserButtonsLabel2();
void UserbuttonsLabel3();
void UserButtonsLabel4();
void UserButtonsLabel5();
void UserButtonsLabel6();
void UserButtonsCommand1();
void UserButtonsCommand2();
void UserButtonsCommand3();
void UserButtonsCommand4();
void UserButtonsCommand5();
void UserButtonsCommand6();
void UserButtonsFunctionKeys();

// "Function Keys".
void FunctionKey6();
void FunctionKey7();
void FunctionKey8();
