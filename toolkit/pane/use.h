// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"

/// How a terminal pane's program, or one that it has started, uses the terminal.
struct PaneUse : terminal::TerminalUse {
    bool started = false;      ///< the program runs, and has worked through its start-up files
    bool in_front = false;     ///< the program itself is the foreground process group
    bool full_screen = false;  ///< the alternate screen is shown
};
