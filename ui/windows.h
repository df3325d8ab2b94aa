// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class Frame;

/// Makes the main window, and then the pop-ups, which belong to it. None is shown.
void create_main_window();
void create_popups();
/// Both.
void create_windows();
/// All of them, in the order they were made.
std::vector<Frame*> all_windows();
/// Takes all windows down, the main window last.
void destroy_windows();
