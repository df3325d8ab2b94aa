// SPDX-License-Identifier: MIT
#pragma once

/// Puts the tool's own key handling in front of the terminal pane's.
void interpose_terminal_keys();
