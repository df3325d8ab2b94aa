// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

class Menu;

/// Whether a directory menu ends with how many files there are; then its entries are for editing, else they
/// are command lists to be loaded.
enum class MenuFooter : std::uint8_t { none, counts };

/// Replaces a menu's entries by those of a directory, `hide` (a `HideMask`) taken off: 1 done, 0 no such
/// directory, -1 200 entries or more. The menu has no entries but for 1.
int add_path_to_menu(Menu& menu, const std::string& path, unsigned hide, MenuFooter footer);
