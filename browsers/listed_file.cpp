// SPDX-License-Identifier: MIT
#include "browsers/listed_file.h"

#include "ui/file_list_browser.h"

#include <fmt/printf.h>

std::optional<std::string> listed_file() {
    FileListBrowser& browser = file_list_browser();
    const std::string name = browser.file_name.text();
    const std::string directory = browser.directory.text();
    browser.set_left_footer("");
    if (name.empty()) {
        browser.set_left_footer("File name not specified");
        return std::nullopt;
    }
    if (directory.empty()) {
        browser.set_left_footer("Directory name not specified");
        return std::nullopt;
    }
    return fmt::sprintf("%s/%s", directory, name);
}
