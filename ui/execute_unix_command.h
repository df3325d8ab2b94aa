// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Execute Unix Command": a command that is run for each selected file.
struct ExecuteUnixCommand : CommandFrame {
    ExecuteUnixCommand() : CommandFrame("Execute Unix Command") {
        command.set_display_length(40);
        execute_fg.set_default();
    }

    TextField command{panel, "Command:"};
    TextField prefix{panel, "Prefix:"};
    Row buttons{panel, Place::field};
    Button execute_fg{buttons, "Execute FG", Execute_unix_command};
    Button execute_bg{buttons, "Execute BG", UnixCommandExecuteBG};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<ExecuteUnixCommand> Orvik_popup36;
inline ExecuteUnixCommand& execute_unix_command() { return *Orvik_popup36; }
