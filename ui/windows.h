// SPDX-License-Identifier: MIT
#pragma once

/// Makes the main window and then the pop-ups, which belong to it. None is shown.
void create_windows();
/// Takes all windows down, the main window last.
void destroy_windows();
