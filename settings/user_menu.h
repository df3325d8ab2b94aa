// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class MenuButton;

/// Makes the entries of a button's menu of a menu definition file, and labels the button as it says: 1 read
/// to the end, 0 cannot be read, -1 the first line lacks "_MENU", 2 an illegal line (the entries before it
/// are there). Entries from before are gone.
int menu_setup(MenuButton& button, const std::string& path);

/// Loads the user's menu. What is wrong with its file goes to the Message Board.
void load_user_menu_at_startup();
