// SPDX-License-Identifier: MIT
#pragma once

#include "app/kept_keys.h"

/// Puts the tool's own key handling in front of the terminal pane's.
void interpose_terminal_keys();
/// These keys of the tool's stay the shell's.
void leave_to_shell(KeptKeys keys);
