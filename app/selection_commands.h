// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// What the terminal's function keys do with the primary selection. Each returns why it did nothing.

/// Types the selection, to be completed by its user.
Message insert_selection();
/// Runs the selection as a command.
Message run_selection();
Message run_selection_in_background();
/// Opens the file that the selection names in the user's editor.
Message edit_selected_file();
/// Changes to the parent directory and lists it.
Message go_directory_up();
/// Changes to the directory that the selection names and lists it.
Message go_to_selected_directory();
/// As `insert_selection`; the shell's state is shown afterwards.
Message type_selection();
/// Has the shell run its latest command that begins with the selection.
Message recall_by_selection();
