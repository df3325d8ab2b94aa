// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Command History Setup": how commands are recorded and when the history is written.
struct CommandHistorySetup : CommandFrame {
    CommandHistorySetup() : CommandFrame("Command History Setup") {
        constexpr int move_to_command_line = 1;
        menu_action.set_value(move_to_command_line);
    }

    TextField history_file_loaded{panel, "History File Loaded:"};
    Choice history_list{panel, "History List", {"On", "Off"}};
    Choice history_file_stored{panel, "History File Stored", {"Home Directory", "Start-up Directory"}};
    Choice save_to_history_file{
        panel, "Save To History File", {"After Every New Command", "When Quitting Orvik", "Never"}};
    Choice insert_duplicates{panel, "Insert Duplicates", {"No", "Yes"}, CommandHistorySetupInsertDup};
    NumberField store_commands_longer_than{panel, "Store commands longer than", 3};
    Choice menu_action{panel, "Menu Action", {"Execute", "Move to command line", "Both"}};
    NumberField number_of_entries{panel, "Number of entries", 20};
};

inline std::unique_ptr<CommandHistorySetup> Orvik_popup9;
inline CommandHistorySetup& command_history_setup() { return *Orvik_popup9; }
