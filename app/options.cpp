// SPDX-License-Identifier: MIT
#include "app/options.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Option {
    std::string_view name;
    bool CommandLineOptions::*flag;
    bool value_of_flag;
    std::string CommandLineOptions::*text;  ///< where the value goes; null for an option without one
};

constexpr std::array options_table{
    Option{"-closed", &CommandLineOptions::closed, true, nullptr},
    Option{"-opened", &CommandLineOptions::closed, false, nullptr},
    Option{"-work", &CommandLineOptions::work, true, &CommandLineOptions::workdir},
    Option{"-ilabel", &CommandLineOptions::ilabel, true, &CommandLineOptions::label},
    Option{"-l", &CommandLineOptions::ilabel, true, &CommandLineOptions::label},
    Option{"-host", &CommandLineOptions::host, true, &CommandLineOptions::hostname},
};

}  // namespace

int process_commandline(std::span<const std::string> arguments, CommandLineOptions& options) {
    options = {};
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const auto* const option =
            std::find_if(options_table.begin(), options_table.end(),
                         [&](const Option& known) { return known.name == arguments[i]; });
        if (option == options_table.end()) {
            continue;
        }
        options.*(option->flag) = option->value_of_flag;
        if (option->text == nullptr || i + 1 == arguments.size()) {
            continue;
        }
        const std::string& value = arguments[++i];
        if (value.starts_with('-')) {
            return 1;
        }
        options.*(option->text) = value;
    }
    return 0;
}
