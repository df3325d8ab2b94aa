// SPDX-License-Identifier: MIT
#include "settings/directory_menus.h"

#include "settings/directory_menu.h"
#include "settings/notify.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "toolkit/menu.h"
#include "ui/edit_menu_setup.h"
#include "ui/main_window.h"

#include <filesystem>
#include <utility>

#include <fmt/printf.h>

namespace {

/// Fills a submenu of "Edit" with a directory, or returns why not.
Message fill(PullRight& item, const std::string& directory, std::string_view illegal) {
    const int result =
        add_path_to_menu(item.menu(), directory, edit_menu_setup().hide.value(), MenuFooter::counts);
    return Message(result == 1 ? "" : result < 0 ? "Too many files" : illegal);
}

/// "Home" and "Startup" may keep what they have shown first.
bool keeps_first(PullRight& item) {
    constexpr int current_only = 1;
    return edit_menu_setup().update_directory.value() == current_only && item.menu().has_entries();
}

/// Both show the home directory; "Startup" only where there is a start-up directory. So it has always been.
Message fill_once_or_always(PullRight& item, const std::string& needed, std::string_view not_defined,
                            std::string_view illegal) {
    if (keeps_first(item)) {
        return {};
    }
    return needed.empty() ? Message(not_defined) : fill(item, home_dir, illegal);
}

}  // namespace

int add_path_to_menu(Menu& menu, const std::string& path, unsigned hide, MenuFooter footer) {
    const bool counts = footer == MenuFooter::counts;
    const DirectoryMenu directory = read_directory_menu(path, hide);
    std::vector<MenuEntry> entries;
    for (const DirectoryMenu::Entry& entry : directory.entries) {
        entries.push_back({entry.label, entry.path});
    }
    if (counts && directory.outcome == DirectoryMenu::Outcome::read) {
        entries.push_back({"", ""});
        entries.push_back({fmt::sprintf("Total number of files  %d", directory.total), ""});
        entries.push_back({fmt::sprintf("Files displayed            %d", directory.entries.size()), ""});
    }
    menu.set_entries(entries, counts ? MenuNotify(my_action_proc) : MenuNotify(my_action_proc2));
    switch (directory.outcome) {
        case DirectoryMenu::Outcome::read:
            return 1;
        case DirectoryMenu::Outcome::too_many:
            return -1;
        case DirectoryMenu::Outcome::illegal:
            break;
    }
    return 0;
}

Message EditMenuCurrent() {
    const std::string directory = path_meant(main_window().cwd.text());
    return directory.empty() ? "Current directory not defined"
                             : fill(main_window().edit_current, directory, "Illegal current directory");
}

Message Edit_menu_home() {
    return fill_once_or_always(main_window().edit_home, home_dir, "Home directory not defined",
                               "Illegal home directory");
}

Message Edit_menu_startup() {
    return fill_once_or_always(main_window().edit_startup, startup_dir, "Startup directory not defined",
                               "Illegal startup directory");
}

void my_action_proc(const std::string& path) {
    std::error_code unknown;
    if (!path.empty() && !std::filesystem::is_directory(path, unknown)) {
        edit_file_silently(path);
    }
}
