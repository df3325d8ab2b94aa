// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"

/// The user's login shell as it is to be started: named with a leading "-", in the start-up directory, with
/// the tool's own environment but for what tells of the terminal.
terminal::Program login_shell();
