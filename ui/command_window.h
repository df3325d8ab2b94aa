// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Command Window": a line for commands that floats beside the terminal.
struct CommandWindow : CommandFrame {
    CommandWindow() : CommandFrame("Command Window") { command.set_display_length(60); }

    TextField command{panel, "C:"};
};

inline std::unique_ptr<CommandWindow> Orvik_popup47;
inline CommandWindow& command_window() { return *Orvik_popup47; }
