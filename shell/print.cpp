// SPDX-License-Identifier: MIT
#include "shell/print.h"

#include "shell/fill_template.h"
#include "shell/operands.h"

#include <array>

#include <fmt/format.h>

std::optional<std::string> print_command(std::string_view users_command, std::string_view path,
                                         std::string_view name) {
    if (users_command.empty()) {
        return fmt::format("mp -s {} {} | lp -c", script_word(name, ShellFamily::other),
                           script_word(path, ShellFamily::other));
    }
    const auto operand = [](std::string_view text) {
        return [text](std::string_view before) {
            return operand_behind(before, text, Shell{ShellFamily::other, true});
        };
    };
    const std::array placeholders{Placeholder{"$PATH_NAME", operand(path)},
                                  Placeholder{"$FILE_NAME", operand(name)}};
    return fill_template(users_command, placeholders, 1);
}
