// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Execute Unix Command": a command that is run for each selected file.
struct ExecuteUnixCommand : CommandFrame {
    ExecuteUnixCommand() : CommandFrame("Execute Unix Command") { command.set_display_length(40); }

    TextField command{panel, "Command:"};
    TextField prefix{panel, "Prefix:"};
};

inline std::unique_ptr<ExecuteUnixCommand> Orvik_popup36;
inline ExecuteUnixCommand& execute_unix_command() { return *Orvik_popup36; }
