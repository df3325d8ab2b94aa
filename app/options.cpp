// SPDX-License-Identifier: MIT
#include "app/options.h"

#include "shell/process.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <fmt/format.h>

namespace {

struct Option {
    std::string_view name;
    bool CommandLineOptions::*flag;
    bool value_of_flag;
    std::string CommandLineOptions::*text;  ///< where the value goes; null for an option without one
    std::string_view value;                 ///< what it is called
    std::string_view meaning;
};

using Options = CommandLineOptions;

constexpr std::array options_table{
    Option{"-closed", &Options::closed, true, nullptr, "", "start as an icon"},
    Option{"-opened", &Options::closed, false, nullptr, "", "start as a window"},
    Option{"-work", &Options::work, true, &Options::workdir, "DIRECTORY", "change to the directory"},
    Option{"-ilabel", &Options::ilabel, true, &Options::label, "LABEL", "the main window's label"},
    Option{"-l", &Options::ilabel, true, &Options::label, "LABEL", "the same"},
    Option{"-host", &Options::host, true, &Options::hostname, "HOST", "log in to the host with rlogin"},
};

/// Options that are not ours to read: a name with its value, and what it means.
struct OtherOption {
    std::string_view text;
    std::string_view meaning;
};

constexpr std::array other_options{
    OtherOption{"-display NAME", "the X display"},
    OtherOption{"-geometry WxH+X+Y", "size and place of the main window, in pixels"},
    OtherOption{"-xrm RESOURCE", "an X resource"},
    OtherOption{"--help", "show this and end"},
    OtherOption{"--version", "show the version and end"},
};

std::string help_text() {
    std::string text = "Usage: orvik [OPTION]...\nA command tool for programmers, with your own shell.\n\n";
    const auto add = [&text](std::string_view option, std::string_view meaning) {
        text += fmt::format("  {:<20} {}\n", option, meaning);
    };
    for (const Option& option : options_table) {
        add(fmt::format("{}{}{}", option.name, option.value.empty() ? "" : " ", option.value),
            option.meaning);
    }
    for (const OtherOption& option : other_options) {
        add(option.text, option.meaning);
    }
    return text;
}

}  // namespace

std::string answer_to(std::span<const std::string> arguments) {
    for (const std::string& argument : arguments) {
        if (argument == "--help") {
            return help_text();
        }
        if (argument == "--version") {
            return fmt::format("orvik {:.2f}\n", version);
        }
    }
    return {};
}

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
