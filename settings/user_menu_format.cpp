// SPDX-License-Identifier: MIT
#include "settings/user_menu_format.h"

#include "shell/lines.h"

#include <utility>

namespace {

/// Takes an item's parts out of "label,command". A part that is missing keeps what the line before had.
void split(std::string_view line, UserMenuItem& item) {
    const std::size_t comma = line.find(',');
    if (comma == std::string_view::npos) {
        item = {.label = std::string(line)};
        return;
    }
    const std::string_view label = line.substr(0, comma);
    const std::string_view command = line.substr(comma + 1);
    if (!label.empty()) {
        item.label = label;
    }
    if (!command.empty()) {
        item.command = command;
    }
}

/// Reads a line. Whether it is a legal one.
bool read_line(std::string_view line, UserMenuItem& previous, UserMenu& menu) {
    const auto holds = [line](std::string_view keyword) {
        return line.find(keyword) != std::string_view::npos;
    };
    if (line.starts_with('#')) {
        return true;
    }
    const bool names_button = holds("$BUTTON_NAME");
    if (names_button || holds("$MENU_TITLE")) {
        const std::size_t comma = line.find(',');
        if (comma == std::string_view::npos || comma + 1 == line.size()) {
            return false;
        }
        std::string text(line.substr(comma + 1));
        if (names_button) {
            menu.button_label = std::move(text);
        } else {
            menu.items.push_back({.label = std::move(text), .is_title = true});
        }
        return true;
    }
    split(line, previous);
    menu.items.push_back(previous);
    return true;
}

}  // namespace

UserMenu parse_user_menu(std::string_view contents) {
    const std::optional<std::vector<std::string>> lines = lines_behind_mark(contents, "_MENU");
    if (!lines) {
        return {.result = -1};
    }
    UserMenu menu;
    UserMenuItem previous;
    for (const std::string& line : *lines) {
        if (menu.items.size() == UserMenu::most_items || !read_line(line, previous, menu)) {
            menu.result = 2;
            break;
        }
    }
    return menu;
}
