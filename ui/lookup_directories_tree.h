// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Lookup Directories": the directories below the tree's root.
struct LookupDirectoriesTree : CommandFrame {
    LookupDirectoriesTree() : CommandFrame("Lookup Directories") { list.set_display_size(48, 16); }

    ScrollingList list{panel, "Lookup Directories list"};
};

inline std::unique_ptr<LookupDirectoriesTree> Orvik_popup26;
inline LookupDirectoriesTree& lookup_directories_tree() { return *Orvik_popup26; }
