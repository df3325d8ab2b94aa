// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text of a menu definition file:
//
//     _MENU
//     # a comment
//     $BUTTON_NAME,My Tools
//     $MENU_TITLE,Every day
//     Build,make all
//     a line without a comma is a label that does nothing

/// A line of the user menu.
struct UserMenuItem {
    std::string label;
    std::string command;    ///< empty: choosing the item does nothing
    bool is_title = false;  ///< stands at the menu's top and cannot be chosen

    bool operator==(const UserMenuItem&) const = default;
};

struct UserMenu {
    static constexpr std::size_t most_items = 10'000;

    /// 1 read to the end; -1 the first line lacks "_MENU"; 2 a "$BUTTON_NAME" or "$MENU_TITLE" without its
    /// text, or too many items: what stands before is there.
    int result = 1;
    std::optional<std::string> button_label;
    std::vector<UserMenuItem> items;
};

UserMenu parse_user_menu(std::string_view contents);
