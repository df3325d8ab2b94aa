// SPDX-License-Identifier: MIT
#include "app/shell.h"

#include "app/messages.h"
#include "app/process.h"
#include "app/quoting.h"
#include "app/text.h"
#include "toolkit/selection.h"
#include "ui/main_window.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <unistd.h>

namespace {

/// The line discipline keeps 4,095 bytes of a line and silently drops the rest (termios(3), canonical mode).
constexpr std::size_t longest_canonical_line = 4095;
constexpr std::size_t longest_selection = 999;

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

std::string type_line(std::string_view text) {
    if (has_control_characters(text)) {
        return "Command holds control characters";
    }
    TerminalPane& pane = main_window().termpane;
    if (text.size() + 1 > longest_canonical_line && pane.reads_lines()) {
        return "Command is too long for the shell";
    }
    ttysw_input(pane, std::string(text) + "\n");
    return {};
}

bool type_or_report(const std::string& text) {
    const std::string refusal = type_line(text);
    if (!refusal.empty()) {
        report(fmt::format("{}: {}\n", refusal, text));
    }
    return refusal.empty();
}

std::string get_seln() {
    const std::string selection = selection_ask().value_or(std::string());
    return selection.size() <= longest_selection ? selection : std::string();
}
