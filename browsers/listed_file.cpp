// SPDX-License-Identifier: MIT
#include "browsers/listed_file.h"

#include "ui/file_list_browser.h"

#include <fmt/printf.h>

ListedFile listed_file() {
    const std::string name = file_list_browser().file_name.text();
    const std::string directory = file_list_browser().directory.text();
    if (name.empty()) {
        return {.refusal = "File name not specified"};
    }
    if (directory.empty()) {
        return {.refusal = "Directory name not specified"};
    }
    return {.path = fmt::sprintf("%s/%s", directory, name)};
}
