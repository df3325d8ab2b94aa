// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of app/, bound to controls by the windows and menus in ui/.

// "Help" menu: each shows its own text.
void To_get_started();
void About_window();
void User_guide();
void HelpMenuButtons();

// "Setup" menu: each opens the window it names.
void SetupMenuBookmarks();
void SetupMenuClearCase();
void SetupMenuCommandList();
void SetupMenuCommandHistory();
void Default_settings_popup();
void Environment_setup_window();
void Open_icon_label();
void Process_display_window();
void SetupMenuRemoteHosts();
void SetupMenuStatusDisplay();
void Text_editor_setup();
void SetupMenuUserButtons();

// "Browse" menu: each opens the window it names.
void Start_file_tree();
void BrowseMenuFullSize();
void Start_file_manager();
void BrowserMenuCommandHistory();
void Browse_mess_board();
void BrowseMenuNoteBook();

// "Edit" menu.
void Edit_menu_setup();

// Main window: the selection and the shell.
Message Directory_up_button();
Message Directory_down_button();
Message Execute_FG_button();
Message Execute_BG_button();
Message OrvikWindowCopyButton();
Message CopyToMessageBoard();
Message FloatingCommandLine();

// Main window: its size, and the terminal's text.
Message Set_wide_screen();
Message Set_normal_width();
Message Set_small_font();
Message Set_large_font();

// Main window: "Cwd:".
Message Cwd_text_line();
/// Shows the shell's directory again and gives the terminal the keyboard.
void leave_cwd();

// Main window: "Command:".
Message Command_text_line();
Message BaseWindowScrollUp();
Message BaseWindowScrollDown();
Message BaseWindowLastCommand();
Message BaseWindowClearCommand();
Message BaseWindowMoveButton();
Message BaseWindowPreviousCommand();
Message BaseWindowNextCommand();
void BaseWindowLeaveCommand();

// Main window: "Quit".
void Quit_button();

// "About".
Message AboutCopy();

// "Command Window".
Message CommandWindowCommandLine();
Message CommandWindowPush();
Message CommandWindowPop();
Message CommandWindowRemove();
Message CommandWindowRun();
Message CommandWindowLast();
Message CommandWindowGet();
Message CommandWindowClearButton();
Message CommandWindowCopy();

// "Define Label".
void DefineLabelApply();

// "Message Board".
Message MessageBoardSave();
Message MessageBoardClear();

// "Notebook".
Message NotebookSave();
Message NotebookLoad();
Message NotebookPrint();
Message NotebookClear();
