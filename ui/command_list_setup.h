// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Command List Setup": where command lists are kept and how wide their window is.
struct CommandListSetup : CommandFrame {
    static constexpr int follow = 1;

    CommandListSetup() : CommandFrame("Command List Setup") {
        commands_directory.set_display_length(40);
        follow_window_size.set_value(follow);
    }

    TextField commands_directory{panel, "Commands Directory:", EnvironmentSetupCommandsDir};
    TextField commands_file_loaded{panel, "Commands File Loaded:", Commands_file_loaded};
    Choice follow_window_size{panel, "Follow Window Size", {"No", "Yes"}, CommandListFollowWindow};
    NumberField window_width{panel, "Window Width:", 450, CommandListSetupWindowWidth};
};

inline std::unique_ptr<CommandListSetup> Orvik_popup7;
inline CommandListSetup& command_list_setup() { return *Orvik_popup7; }
