// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Command History Manager": the recorded commands; its list is the history.
struct CommandHistoryManager : CommandFrame {
    CommandHistoryManager() : CommandFrame("Command History Manager") { list.set_display_size(72, 20); }

    Row actions{panel};
    NumberField position{actions, "Position", 0, CommandHistoryPosition};
    Button begin{actions, "Begin", CommandHistoryBegin};
    Button end{actions, "End", CommandHistoryEnd};
    Button save{actions, "Save", CommandHistorySaveButton};
    Button edit{actions, "Edit", EditCommandHistory};
    Button update{actions, "Update", UpdateCommandHistory};
    Button sort{actions, "Sort", CommandHistorySort};
    Stretch behind_actions{actions};

    Row search{panel};
    Button find{search, "Find", CommandHistoryFind};
    Button find_next{search, "N", CommandHistoryFindNext};
    TextField find_text{search, "F:", CommandHistoryFindText};
    int find_resume = -1;  ///< the row behind the last one found; -1 before anything was

    ScrollingList list{panel, "Command History Manager list", CommandHistoryList};
};

inline std::unique_ptr<CommandHistoryManager> Orvik_popup10;
inline CommandHistoryManager& command_history_manager() { return *Orvik_popup10; }
