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

Message move_typed_command(CommandAsker asker) {
    const TakenCommand command = take_typed_command(asker);
    if (!command) {
        return command.refusal;
    }
    if (default_settings().open_long_command_window.value()) {
        command_window().command.set_text(command.text);
        show_command_window();
    } else {
        main_window().command.set_text(command.text);
        main_window().command.set_focus();
    }
    return {};
}

Message recall_last_command() {
    const std::string last = default_settings().last_command.text();
    if (last.empty()) {
        return "No command saved";
    }
    main_window().command.set_text(last);
    return {};
}

Message Command_text_line() { return send_command_field(main_window().command); }

Message BaseWindowClearCommand() {
    main_window().command.set_text("");
    return {};
}

Message BaseWindowScrollUp() {
    main_window().command.set_focus();
    return history_previous(HistoryWalker::button);
}

Message BaseWindowScrollDown() {
    main_window().command.set_focus();
    return history_next(HistoryWalker::button);
}

Message BaseWindowLastCommand() {
    main_window().command.set_focus();
    return recall_last_command();
}

Message BaseWindowPreviousCommand() { return history_previous(); }

Message BaseWindowNextCommand() { return history_next(); }

void BaseWindowLeaveCommand() { main_window().termpane.set_focus(); }

Message BaseWindowMoveButton() { return move_typed_command(CommandAsker::move_button); }
