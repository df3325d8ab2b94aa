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
