// SPDX-License-Identifier: MIT
#include "shell/login_shell.h"

#include "shell/process.h"
#include "shell/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <unistd.h>

namespace {

constexpr std::array terminal_variables{std::string_view("TERM="), std::string_view("COLORTERM="),
                                        std::string_view("LINES="), std::string_view("COLUMNS=")};

std::vector<std::string> shell_environment() {
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string_view text = *variable;
        if (std::none_of(terminal_variables.begin(), terminal_variables.end(),
                         [&](std::string_view name) { return text.starts_with(name); })) {
            variables.emplace_back(text);
        }
    }
    variables.emplace_back("TERM=xterm-256color");
    variables.emplace_back("COLORTERM=truecolor");
    return variables;
}

}  // namespace

terminal::Program login_shell() {
    return {.path = shell_name,
            .arguments = {fmt::format("-{}", getfilename(shell_name))},
            .environment = shell_environment(),
            .directory = startup_dir};
}
