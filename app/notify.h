// SPDX-License-Identifier: MIT
#pragma once

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
void Directory_up_button();
void Directory_down_button();
void Execute_FG_button();
void Execute_BG_button();
void OrvikWindowCopyButton();
void CopyToMessageBoard();
void FloatingCommandLine();

// Main window: its size, and the terminal's text.
void Set_wide_screen();
void Set_normal_width();
void Set_small_font();
void Set_large_font();

// Main window: "Command:".
void Command_text_line();
void BaseWindowScrollUp();
void BaseWindowScrollDown();
void BaseWindowLastCommand();
void BaseWindowClearCommand();
void BaseWindowMoveButton();

// Main window: "Quit".
void Quit_button();

// "About".
void AboutCopy();

// "Command Window".
void CommandWindowCommandLine();
void CommandWindowPush();
void CommandWindowPop();
void CommandWindowRemove();
void CommandWindowRun();
void CommandWindowLast();
void CommandWindowGet();
void CommandWindowClearButton();
void CommandWindowCopy();

// "Define Label".
void DefineLabelApply();

// "Message Board".
void MessageBoardSave();
void MessageBoardClear();

// "Notebook".
void NotebookSave();
void NotebookLoad();
void NotebookPrint();
void NotebookClear();
