// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Command List Manager": the command list that is loaded.
struct CommandListManager : CommandFrame {
    CommandListManager() : CommandFrame("Command List Manager") { list.set_display_size(40, 20); }

    Row buttons{panel};
    Button edit{buttons, "Edit", Edit_commands_file};
    Button update{buttons, "Update", Update_commands_list};
    Stretch behind_buttons{buttons};
    TextField text{panel, "Text:"};
    ScrollingList list{panel, "Command List Manager list", Command_scrolling_list};
};

inline std::unique_ptr<CommandListManager> Orvik_popup8;
inline CommandListManager& command_list_manager() { return *Orvik_popup8; }
