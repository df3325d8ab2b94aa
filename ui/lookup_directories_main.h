// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Lookup Directories": the directories below one of the user's choice.
struct LookupDirectoriesMain : CommandFrame {
    LookupDirectoriesMain() : CommandFrame("Lookup Directories") { list.set_display_size(48, 16); }

    TextField dir{panel, "Dir:"};
    ScrollingList list{panel, "Lookup Directories list"};
};

inline std::unique_ptr<LookupDirectoriesMain> Orvik_popup27;
inline LookupDirectoriesMain& lookup_directories_main() { return *Orvik_popup27; }
