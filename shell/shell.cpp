// SPDX-License-Identifier: MIT
#include "shell/shell.h"

#include "shell/messages.h"
#include "shell/process.h"
#include "shell/quoting.h"
#include "shell/text.h"
#include "toolkit/selection.h"
#include "ui/main_window.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include <fmt/format.h>
#include <unistd.h>

namespace {

/// The line discipline keeps 4,095 bytes of a line and silently drops the rest (termios(3), canonical mode).
constexpr std::size_t longest_canonical_line = 4095;
/// ksh93's vi editor keeps 1,019 bytes and silently drops the rest; whether it is on cannot be seen.
constexpr std::size_t longest_ksh_line = 1000;
constexpr std::size_t longest_selection = 999;
constexpr std::size_t longest_answered_selection = 1000;  ///< a longer one is called too long

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

/// Why a text is not typed; empty when it may be.
std::string type_refusal(std::string_view text) {
    if (has_control_characters(text)) {
        return "Command holds control characters";
    }
    const bool cut_by_ksh = user_shell.family == ShellFamily::ksh && text.size() > longest_ksh_line;
    if (cut_by_ksh || (text.size() + 1 > longest_canonical_line && main_window().termpane.reads_lines())) {
        return "Command is too long for the shell";
    }
    return {};
}

std::string not_too_long(const std::string& selection) {
    return selection.size() <= longest_selection ? selection : std::string();
}

/// What becomes of the tabs in a selection: with a blank for each it would be the name of another file.
enum class Tabs : std::uint8_t { become_blanks, are_refused };

SelectionLine first_line(const std::string& selection, Tabs tabs) {
    SelectionLine line{.text = remove_nl(selection)};
    if (tabs == Tabs::become_blanks) {
        std::replace(line.text.begin(), line.text.end(), '\t', ' ');
    }
    if (has_control_characters(line.text)) {
        line.refusal = "Selection holds control characters";
    }
    return line;
}

std::optional<std::string> ask_for_line(Frame& frame, Tabs tabs, std::string_view none,
                                        std::string_view too_long) {
    const std::string selection = selection_ask().value_or(std::string());
    if (selection.size() > longest_answered_selection) {
        frame.set_left_footer(too_long);
        return std::nullopt;
    }
    SelectionLine line = first_line(not_too_long(selection), tabs);
    if (line.text.empty() || !line.refusal.empty()) {
        frame.set_left_footer(line.text.empty() ? none : line.refusal);
        return std::nullopt;
    }
    return std::move(line.text);
}

}  // namespace

terminal::Program login_shell() {
    return {.path = shell_name,
            .arguments = {fmt::format("-{}", getfilename(shell_name))},
            .environment = shell_environment(),
            .directory = startup_dir};
}

std::string type_line(std::string_view text) {
    std::string refusal = type_refusal(text);
    if (refusal.empty()) {
        ttysw_input(main_window().termpane, std::string(text) + "\n");
    }
    return refusal;
}

std::string type_text(std::string_view text) {
    std::string refusal = type_refusal(text);
    if (refusal.empty()) {
        ttysw_input(main_window().termpane, text);
    }
    return refusal;
}

void type_control(char letter) {
    constexpr char control_bits = 0x1F;
    const char character = static_cast<char>(letter & control_bits);
    ttysw_input(main_window().termpane, {&character, 1});
}

std::optional<std::string> selected_line(Frame& frame, std::string_view none, std::string_view too_long) {
    return ask_for_line(frame, Tabs::become_blanks, none, too_long);
}

std::optional<std::string> selected_name(Frame& frame, std::string_view none, std::string_view too_long) {
    return ask_for_line(frame, Tabs::are_refused, none, too_long);
}

SelectionLine selection_line() { return first_line(get_seln(), Tabs::become_blanks); }

bool type_or_report(const std::string& text) {
    const std::string refusal = type_line(text);
    if (!refusal.empty()) {
        report(fmt::format("{}: {}\n", refusal, text));
    }
    return refusal.empty();
}

std::string get_seln() { return not_too_long(selection_ask().value_or(std::string())); }
