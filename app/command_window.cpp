// SPDX-License-Identifier: MIT
#include "app/command_window.h"

#include "app/command_field.h"
#include "app/notify.h"
#include "app/typed_command.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/send_line.h"
#include "shell/shell.h"
#include "ui/command_window.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"

#include <optional>

#include <fmt/format.h>

namespace {

void send(std::string_view line) { (void)send_line(command_window(), line); }

constexpr std::string_view no_selection = "No selection made or selection too long";

}  // namespace

void show_command_window() {
    constexpr int below_main_window = 600;  // pixels
    command_window().open(0, below_main_window);
    command_window().command.set_focus();
}

void CommandWindowPush() {
    command_window().set_left_footer("");
    const std::optional<std::string> selected = selected_name(command_window(), no_selection, no_selection);
    if (!selected) {
        return;
    }
    const std::string directory = with_home_directory(*selected);
    if (const std::optional<std::string> word = shell_word(directory, user_shell)) {
        send(fmt::format("pushd {}", *word));
    } else {
        command_window().set_left_footer(name_refusal(directory));
    }
}

void CommandWindowPop() { send("popd"); }

/// The names are the user's own words: nothing in them is quoted, and no question is asked but by rm.
void CommandWindowRemove() {
    const std::string names = command_window().command.text();
    if (names.empty()) {
        command_window().set_left_footer("No file");
    } else {
        send(fmt::format("rm {}", names));
    }
}

void CommandWindowRun() {
    const std::string command = command_window().command.text();
    if (command.empty()) {
        command_window().set_left_footer("No command");
    } else {
        send(command);
    }
}

void CommandWindowLast() {
    const std::string last = default_settings().last_command.text();
    command_window().set_left_footer(last.empty() ? "No command stored" : "");
    if (!last.empty()) {
        command_window().command.set_text(last);
    }
}

void CommandWindowGet() {
    command_window().set_left_footer("");
    if (const std::optional<std::string> text = selected_line(command_window(), no_selection, no_selection)) {
        command_window().command.set_text(*text);
    }
}

void CommandWindowClearButton() {
    command_window().set_left_footer("");
    command_window().command.set_text("");
}

void CommandWindowCopy() {
    command_window().set_left_footer("");
    if (const std::optional<std::string> command = take_typed_command(CommandAsker::copy_button)) {
        command_window().command.set_text(*command);
    }
}

void CommandWindowCommandLine() { send_command_field(command_window(), command_window().command); }

void FloatingCommandLine() {
    main_window().set_left_footer("");
    show_command_window();
}
