// SPDX-License-Identifier: MIT
#include "settings/command_list_format.h"

#include "shell/lines.h"
#include "shell/text.h"

std::optional<std::vector<std::string>> parse_commands(std::string_view contents) {
    return lines_behind_mark(contents, "_COMMANDS");
}

std::string without_comment(std::string_view row) { return remove_trailing_spaces(remove_comments1(row)); }
