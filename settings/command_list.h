// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class ScrollingList;

/// Replaces a list's rows by those of a commands file: 1 loaded, 0 cannot be read, -1 the first line lacks
/// "_COMMANDS"; the rows stay then.
int load_list(ScrollingList& list, const std::string& path);

/// Makes the menu of the main window's "Command" button of the "Commands Directory:"; the Message Board has
/// it when that is none.
void make_command_menu_at_startup();

/// The "Command List Manager" is as wide as "Command List Setup" says, its list as wide as the window or 40
/// pixels less.
void size_command_list();
