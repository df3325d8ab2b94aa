// SPDX-License-Identifier: MIT
#include "settings/user_menu.h"

#include "settings/load_file.h"
#include "settings/notify.h"
#include "settings/user_menu_format.h"
#include "shell/editor.h"
#include "shell/process.h"
#include "shell/send.h"
#include "ui/main_window.h"

#include <utility>

#include <fmt/printf.h>

namespace {

/// More is not read of a file: no menu is of use that long.
constexpr std::size_t most_bytes = std::size_t{1536} * 1024;

std::string menu_path() { return fmt::sprintf("%s/.orvik-menu", home_dir); }

}  // namespace

int menu_setup(MenuButton& button, const std::string& path) {
    button.menu().set_entries({}, notify_user_defined);
    const LoadedFile file = load_file(path, most_bytes);
    if (!file.text) {
        return 0;
    }
    UserMenu read = parse_user_menu(*file.text);
    std::vector<MenuEntry> entries;
    for (UserMenuItem& item : read.items) {
        entries.push_back({std::move(item.label), std::move(item.command), item.is_title});
    }
    button.menu().set_entries(entries, notify_user_defined);
    if (read.button_label) {
        button.set_label(*read.button_label);
    }
    return read.result;
}

void load_user_menu_at_startup() { report_load(menu_load, menu_setup(main_window().user_menu, menu_path())); }

Message Generate_new_menu() {
    return load_message(menu_load, menu_setup(main_window().user_menu, menu_path()));
}

Message Edit_user_menu() { return edit_file(menu_path()); }

Message notify_user_defined(const std::string& command) {
    return command.empty() ? "" : send(CommandLine::of_user(command));
}
