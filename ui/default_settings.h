// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Default Settings": how commands are read from the terminal pane and printed.
struct DefaultSettings : CommandFrame {
    DefaultSettings() : CommandFrame("Default Settings") {
        print_command.set_display_length(40);
        print_command.set_text("lp $PATH_NAME");
        print_command.set_tool_tip("$PATH_NAME stands for the path of the file, $FILE_NAME for its name");
        list_directory_command.set_text("ls -aF");
        look_for_ending_delimiter.set_value(true);
    }

    TextField print_command{panel, "Print Command:"};
    TextField list_directory_command{panel, "List Directory Command:"};
    Choice command_line_editing{panel, "Command Line Editing", {"Disabled", "Enabled"}};
    TextField prompt{panel, "Prompt:"};
    CheckBox look_for_ending_delimiter{panel, "Look For Ending Delimiter"};
    TextField prompt_ending_delimiter{panel, "Prompt Ending Delimiter:"};
    TextField last_command{panel, "Last Command:"};
    CheckBox open_long_command_window{panel, "Open Long Command Window"};
    CheckBox clear_command_line{panel, "Clear Command Line"};
};

inline std::unique_ptr<DefaultSettings> Orvik_popup2;
inline DefaultSettings& default_settings() { return *Orvik_popup2; }
