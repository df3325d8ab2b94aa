// SPDX-License-Identifier: MIT
// "Command:" and the buttons beside it.
#include "app/command_line.h"

#include "app/command_field.h"
#include "app/command_window.h"
#include "app/notify.h"
#include "settings/history.h"
#include "ui/command_window.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"

#include <optional>

void move_typed_command(CommandAsker asker) {
    main_window().set_left_footer("");
    const std::optional<std::string> command = take_typed_command(asker);
    if (!command) {
        return;
    }
    if (default_settings().open_long_command_window.value()) {
        command_window().command.set_text(*command);
        show_command_window();
    } else {
        main_window().command.set_text(*command);
        main_window().command.set_focus();
    }
}

void recall_last_command() {
    const std::string last = default_settings().last_command.text();
    main_window().set_left_footer(last.empty() ? "No command saved" : "");
    if (!last.empty()) {
        main_window().command.set_text(last);
    }
}

void Command_text_line() { send_command_field(main_window(), main_window().command); }

void BaseWindowClearCommand() {
    main_window().set_left_footer("");
    main_window().command.set_text("");
}

void BaseWindowScrollUp() {
    history_previous(HistoryWalker::button);
    main_window().command.set_focus();
}

void BaseWindowScrollDown() {
    history_next(HistoryWalker::button);
    main_window().command.set_focus();
}

void BaseWindowLastCommand() {
    recall_last_command();
    main_window().command.set_focus();
}

void BaseWindowMoveButton() { move_typed_command(CommandAsker::move_button); }
