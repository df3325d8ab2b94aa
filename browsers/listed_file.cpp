// SPDX-License-Identifier: MIT
#include "browsers/listed_file.h"

#include "browsers/paths.h"
#include "shell/text.h"
#include "ui/file_list_browser.h"

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

std::string path_of(const std::string& name) {
    return fmt::sprintf("%s/%s", file_list_browser().directory.text(), name);
}

}  // namespace

bool is_there(const std::string& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0;
}

std::optional<std::string> name_for_copy(const std::string& directory, const std::string& name) {
    for (std::string free : {name, name + "_NEW"}) {
        if (!is_there(path_in(directory, free))) {
            return free;
        }
    }
    return std::nullopt;
}

std::string listed_name() {
    std::string name = file_list_browser().file_name.text();
    const std::optional<int> selected = file_list_browser().list.selected();
    if (!selected || name.empty()) {
        return name;
    }
    const std::string& row = file_list_browser().list.row(*selected);
    const bool found = name == row || (name == convert_tolower(row) && !is_there(path_of(name)));
    if (!found) {
        return name;
    }
    return *selected == 0 ? ".." : row;
}

ListedFile listed_file(const MissingTexts& missing) {
    if (file_list_browser().directory.text().empty()) {
        return {.refusal = Message(missing.directory)};
    }
    if (file_list_browser().file_name.text().empty()) {
        return {.refusal = Message(missing.name)};
    }
    std::string name = listed_name();
    return {.path = path_of(name), .name = name};
}

ListedFile file_to_load() {
    if (file_list_browser().file_name.text().empty()) {
        return {.refusal = "File name not specified"};
    }
    return listed_file({.directory = "Directory name not specified"});
}
