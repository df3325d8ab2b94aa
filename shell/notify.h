// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of shell/, bound to controls by the windows and menus in ui/.

// Main window: the button that types the prompt hook.
Message BaseWindowSetAlias();

// Main window: the strip of the command lines that wait for the shell.
void SendFirstWaitingLine();
void DropWaitingLines();
/// Shows the list of them, or hides it.
void ShowWaitingLines();
Message DropWaitingLine();
/// Gives the terminal the keyboard back.
void leave_waiting_lines();
/// The watch over them, while there are any.
void look_after_waiting_lines();

// Main window: the watch over a prompt hook that was typed.
void look_for_report();

// Main window: the watch over the status file, which the shell has rewritten.
void follow_status_file();

// "Status Display".
void StatusDisplayEnable();
Message StatusDisplayOnOff();
