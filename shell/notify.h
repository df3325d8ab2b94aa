// SPDX-License-Identifier: MIT
#pragma once

// The notify procedures of shell/, bound to controls by the windows and menus in ui/.

// Main window: the button that types the prompt hook.
void BaseWindowSetAlias();

// "Status Display".
void StatusDisplayEnable();
void StatusDisplayOnOff();
