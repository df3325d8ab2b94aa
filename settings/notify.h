// SPDX-License-Identifier: MIT
#pragma once

#include <string>

struct ListEvent;

// The notify procedures of settings/, bound to controls by the windows and menus in ui/.

// "Setup" menu.
void Save_current_setup();

// "Edit" menu: each fills the menu of its item. Then what their entries call.
void EditMenuCurrent();
void Edit_menu_home();
void Edit_menu_startup();
void my_action_proc(const std::string& path);

// "User" menu, and what the entries of the menu definition file call.
void Edit_user_menu();
void Generate_new_menu();
void notify_user_defined(const std::string& command);

// "Command" menu: fills it; then what its entries call.
void BaseWindowCommandMenu();
void my_action_proc2(const std::string& path);

// "File List Browser", "Load" menu.
void FileListLoadCommand();
void FileListLoadSetup();

// "Command List Manager", and the main window's button for it.
void BaseWindowCommandList();
void Edit_commands_file();
void Update_commands_list();
void Command_scrolling_list(const ListEvent& event);

// "Command List Setup".
void EnvironmentSetupCommandsDir();
void Commands_file_loaded();
void CommandListFollowWindow();
void CommandListSetupWindowWidth();

// "Bookmarks".
void BookmarkSetupFileName();
void BookmarksUpdate();
void BookmarkFIleEdit();

// "Bookmark Definition", and the main window's buttons for it.
void BaseWindowBookmark();
void BaseWindowAddBookmark();
void BookmarkDefinitionName();
void BookmarkDefinitionFile();
void BookmarkDefinitionType();
void BookmarkDefinitionAddBookmark();

// What the entries of the bookmark menus call.
void SetBookmarkDir(const std::string& path);
void OpenBookmarkSource(const std::string& path);
void RunBookmarkExec(const std::string& path);
void RunBookmarkScript(const std::string& path);
void OpenBookmarkHTML(const std::string& path);
void OpenBookmarkPDF(const std::string& path);
void OpenBookmarkOther(const std::string& path);

// "Command History Manager".
void CommandHistoryPosition();
void CommandHistoryBegin();
void CommandHistoryEnd();
void CommandHistorySaveButton();
void EditCommandHistory();
void UpdateCommandHistory();
void CommandHistorySort();
void CommandHistoryFind();
void CommandHistoryFindNext();
void CommandHistoryFindText();
void CommandHistoryList(const ListEvent& event);

// "Command History Setup".
void CommandHistorySetupInsertDup();

// The main window's history button, and the items of its menu.
void Bottom_buttons_menu();
void my_action_proc3(const std::string& item);

// The main window's user buttons.
void UserButton1();
void UserButton2();
void UserButton3();
void UserButton4();
void UserButton5();
void UserButton6();

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
