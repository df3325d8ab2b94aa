// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Command History Manager": the recorded commands; its list is the history.
struct CommandHistoryManager : CommandFrame {
    CommandHistoryManager() : CommandFrame("Command History Manager") { list.set_display_size(72, 20); }

    NumberField position{panel, "Position"};
    TextField find_text{panel, "F:"};
    ScrollingList list{panel, "Command History Manager list"};
};

inline std::unique_ptr<CommandHistoryManager> Orvik_popup10;
inline CommandHistoryManager& command_history_manager() { return *Orvik_popup10; }
