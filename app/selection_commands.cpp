// SPDX-License-Identifier: MIT
// What the function keys and the main window's buttons do with the primary selection.
#include "app/selection_commands.h"

#include "app/notify.h"
#include "shell/editor.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/quoting.h"
#include "shell/send_line.h"
#include "shell/shell.h"
#include "shell/status.h"
#include "ui/main_window.h"
#include "ui/notebook.h"

#include <fmt/format.h>

namespace {

constexpr std::string_view no_selection_for_key = "No selection made";
constexpr std::string_view no_selection_for_button = "No selection made or selection too long";

std::optional<std::string> selection(std::string_view none) {
    main_window().set_left_footer("");
    return selected_line(main_window(), none);
}

void send(std::string_view line) { (void)send_line(main_window(), line); }

void send_directory_change(std::string_view directory) {
    if (send_line(main_window(), fmt::format("cd {}", directory))) {
        send("ls -aF");
    }
}

using Quoting = std::optional<std::string> (*)(std::string_view name, const Shell& shell);

/// The selection as a file name for the user's shell; nothing, and the footer says why, where there is none.
std::optional<std::string> selected_word(std::string_view none, Quoting quoting) {
    main_window().set_left_footer("");
    const std::optional<std::string> selected = selected_name(main_window(), none);
    if (!selected) {
        return std::nullopt;
    }
    const std::string name = with_home_directory(*selected);
    std::optional<std::string> word = quoting(name, user_shell);
    if (!word) {
        main_window().set_left_footer(name_refusal(name));
    }
    return word;
}

}  // namespace

void insert_selection() {
    if (const std::optional<std::string> text = selection(no_selection_for_key)) {
        main_window().set_left_footer(type_text(*text));
    }
}

void run_selection() {
    if (const std::optional<std::string> command = selection(no_selection_for_key)) {
        send(*command);
    }
}

void run_selection_in_background() {
    if (const std::optional<std::string> command = selection(no_selection_for_key)) {
        send(fmt::format("{} &", *command));
    }
}

void edit_selected_file() {
    const std::optional<std::string> name = selected_word(no_selection_for_key, escaped_word);
    if (!name) {
        return;
    }
    if (const std::optional<std::string> command = editor_command(*name)) {
        send(fmt::format("{} &", *command));
    } else {
        main_window().set_left_footer("User editor not specified");
    }
}

void go_directory_up() {
    main_window().set_left_footer("");
    send_directory_change("..");
}

void go_to_selected_directory() {
    if (const std::optional<std::string> name = selected_word(no_selection_for_key, shell_word)) {
        send_directory_change(*name);
    }
}

void type_selection() {
    insert_selection();
    SetupTimer(refresh_after_command);
}

void recall_by_selection() {
    if (const std::optional<std::string> text = selection("No selection")) {
        send(fmt::format("!{}", *text));
    }
}

void Directory_up_button() { go_directory_up(); }

void Directory_down_button() {
    if (const std::optional<std::string> name = selected_word(no_selection_for_button, double_quoted_word)) {
        send_directory_change(*name);
    }
}

void Execute_FG_button() {
    if (const std::optional<std::string> name = selected_word(no_selection_for_button, double_quoted_word)) {
        send(*name);
    }
}

void Execute_BG_button() {
    if (const std::optional<std::string> name = selected_word(no_selection_for_button, double_quoted_word)) {
        send(fmt::format("{} &", *name));
    }
}

void OrvikWindowCopyButton() {
    if (const std::optional<std::string> text = selection(no_selection_for_button)) {
        main_window().set_left_footer(type_text(*text));
        main_window().termpane.set_focus();
    }
}

void CopyToMessageBoard() {
    if (const std::optional<std::string> text = selection(no_selection_for_button)) {
        display_message(notebook().text, *text + "\n\n");
    }
}
