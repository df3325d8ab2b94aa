// SPDX-License-Identifier: MIT
#pragma once

// The notify procedures of app/, bound to controls by the windows and menus in ui/.

// "Setup" and "Browse" menus: each opens the window it names.
void Default_settings_popup();
void Environment_setup_window();
void Open_icon_label();
void Process_display_window();
void SetupMenuStatusDisplay();
void Browse_mess_board();

// "Define Label".
void DefineLabelApply();

// "Status Display".
void StatusDisplayEnable();
void StatusDisplayOnOff();
