// SPDX-License-Identifier: MIT
#include "shell/print.h"

#include "shell/text.h"

#include <fmt/format.h>

std::string print_command(std::string_view users_command, std::string_view path) {
    const std::string name = getfilename(path);
    if (users_command.empty()) {
        return fmt::format("mp -s {} {} | lp -c", name, path);
    }
    return replace_text(replace_text(users_command, "$PATH_NAME", path), "$FILE_NAME", name);
}
