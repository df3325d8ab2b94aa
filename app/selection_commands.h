// SPDX-License-Identifier: MIT
#pragma once

// What the terminal's function keys do with the primary selection. Each tells in the main window's left
// footer why it did nothing.

/// Types the selection, to be completed by its user.
void insert_selection();
/// Runs the selection as a command.
void run_selection();
void run_selection_in_background();
/// Opens the file that the selection names in the user's editor.
void edit_selected_file();
/// Changes to the parent directory and lists it.
void go_directory_up();
/// Changes to the directory that the selection names and lists it.
void go_to_selected_directory();
/// As `insert_selection`; the shell's state is shown afterwards.
void type_selection();
/// Has the shell run its latest command that begins with the selection.
void recall_by_selection();
