// SPDX-License-Identifier: MIT
#include "app/command_field.h"

#include "settings/history.h"
#include "shell/send_line.h"
#include "ui/default_settings.h"

void send_command_field(Frame& frame, TextField& field) {
    const std::string command = field.text();
    if (!send_line(frame, command)) {
        return;
    }
    record_command(command);
    if (default_settings().clear_command_line.value()) {
        field.set_text("");
    }
    default_settings().last_command.set_text(command);
}
