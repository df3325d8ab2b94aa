// SPDX-License-Identifier: MIT
#pragma once

#include <string>

struct ListEvent;

// The notify procedures of settings/, bound to controls by the windows and menus in ui/.

// "Setup" menu.
void Save_current_setup();

// "File List Browser", "Load" menu.
void FileListLoadSetup();

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
