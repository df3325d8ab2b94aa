// SPDX-License-Identifier: MIT
// The main window's buttons that act on the primary selection, and "directory up".
#include "app/messages.h"
#include "app/notify.h"
#include "app/process.h"
#include "app/quoting.h"
#include "app/shell.h"
#include "app/status.h"
#include "ui/main_window.h"
#include "ui/notebook.h"

#include <fmt/format.h>

namespace {

constexpr std::string_view no_selection = "No selection made or selection too long";
constexpr std::string_view list_directory = "ls -aF";

/// The selection as a buttons' operand; nothing, and the footer says why, when it is none.
std::optional<std::string> operand() {
    main_window().set_left_footer("");
    return selected_line(main_window(), no_selection);
}

void type_lines(std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) {
        const std::string refusal = type_line(line);
        if (!refusal.empty()) {
            main_window().set_left_footer(refusal);
            return;
        }
    }
    SetupTimer(refresh_after_command);
}

/// The selection in double quotes, so that a name with blanks is one word.
std::optional<std::string> quoted_operand() {
    const std::optional<std::string> name = operand();
    if (!name) {
        return std::nullopt;
    }
    std::optional<std::string> word = double_quoted_word(*name, shell_family(shell_name));
    if (!word) {
        main_window().set_left_footer(fmt::format("Name can't be typed into the shell: {}", *name));
    }
    return word;
}

}  // namespace

void Directory_up_button() {
    main_window().set_left_footer("");
    type_lines({"cd ..", list_directory});
}

void Directory_down_button() {
    if (const std::optional<std::string> word = quoted_operand()) {
        type_lines({fmt::format("cd {}", *word), list_directory});
    }
}

void Execute_FG_button() {
    if (const std::optional<std::string> word = quoted_operand()) {
        type_lines({*word});
    }
}

void Execute_BG_button() {
    if (const std::optional<std::string> word = quoted_operand()) {
        type_lines({fmt::format("{} &", *word)});
    }
}

void OrvikWindowCopyButton() {
    if (const std::optional<std::string> text = operand()) {
        main_window().set_left_footer(type_text(*text));
        main_window().termpane.set_focus();
    }
}

void CopyToMessageBoard() {
    if (const std::optional<std::string> text = operand()) {
        display_message(notebook().text, *text + "\n\n");
    }
}
