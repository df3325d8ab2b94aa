// SPDX-License-Identifier: MIT
#include "settings/directory_menu.h"

#include "browsers/directory.h"
#include "browsers/scan.h"

#include <utility>

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

constexpr std::size_t too_many_entries = 200;

bool is_hidden(const Directory& directory, const std::string& name, unsigned hide) {
    if ((hide & hide_dot_files) != 0 && name.starts_with('.')) {
        return true;
    }
    return (hide & hide_directories) != 0 && S_ISDIR(directory.link_mode_of(name).value_or(0));
}

std::string_view mark_of(mode_t mode) {
    if (S_ISDIR(mode)) {
        return "/";
    }
    if (S_ISLNK(mode)) {
        return "@";
    }
    constexpr mode_t any_execute = S_IXUSR | S_IXGRP | S_IXOTH;
    return S_ISREG(mode) && (mode & any_execute) != 0 ? "*" : "";
}

}  // namespace

DirectoryMenu read_directory_menu(const std::string& path, unsigned hide) {
    Directory directory(path);
    if (!directory.is_open() || (directory.mode().value_or(0) & S_IRUSR) == 0) {
        return {.outcome = DirectoryMenu::Outcome::illegal};
    }
    DirectoryMenu menu;
    std::vector<std::string> names;
    while (const char* entry = directory.next()) {
        const std::string name = entry;
        if (is_dots(name)) {
            continue;
        }
        ++menu.total;
        if (is_hidden(directory, name, hide)) {
            continue;
        }
        names.push_back(name);
        if (names.size() == too_many_entries) {
            return {.outcome = DirectoryMenu::Outcome::too_many};
        }
    }
    quicksort(names);
    for (const std::string& name : names) {
        std::string label = name;
        label += mark_of(directory.link_mode_of(name).value_or(0));
        menu.entries.push_back({std::move(label), fmt::sprintf("%s/%s", path, name)});
    }
    return menu;
}
