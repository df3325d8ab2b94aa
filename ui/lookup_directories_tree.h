// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Lookup Directories": the directories below the tree's root.
struct LookupDirectoriesTree : CommandFrame {
    LookupDirectoriesTree() : CommandFrame("Lookup Directories") { list.set_display_size(48, 16); }

    Row buttons{panel};
    Button display{buttons, "Display", LookupTreeDisplay};
    Button up{buttons, " Up ", LookupTreeUp};
    Button set_root{buttons, "Set Root", LookupTreeSetRoot};
    Stretch behind_buttons{buttons};
    ScrollingList list{panel, "Lookup Directories list", LookupTreeList};
};

inline std::unique_ptr<LookupDirectoriesTree> Orvik_popup26;
inline LookupDirectoriesTree& lookup_directories_tree() { return *Orvik_popup26; }
