// SPDX-License-Identifier: MIT
#include "app/command_field.h"

#include "settings/history.h"
#include "shell/send.h"
#include "ui/default_settings.h"

Message send_command_field(TextField& field) {
    const std::string command = field.text();
    Message refusal = send(CommandLine::of_user(command), Remember::last_command);
    if (refusal.empty()) {
        record_command(command);
        if (default_settings().clear_command_line.value()) {
            field.set_text("");
        } else {
            field.select_all();  // the next command takes its place
        }
    }
    return refusal;
}
