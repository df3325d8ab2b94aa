// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of shell/, bound to controls by the windows and menus in ui/.

// Main window: the button that types the prompt hook.
Message BaseWindowSetAlias();

// "Status Display".
void StatusDisplayEnable();
Message StatusDisplayOnOff();
