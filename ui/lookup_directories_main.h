// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/scrolling_list.h"

#include <memory>

/// "Lookup Directories": the directories below one of the user's choice.
struct LookupDirectoriesMain : CommandFrame {
    LookupDirectoriesMain() : CommandFrame("Lookup Directories") { list.set_display_size(48, 16); }

    TextField dir{panel, "Dir:", LookupMainDisplay};
    Row buttons{panel};
    Button display{buttons, "Display", LookupMainDisplay};
    Button current{buttons, "Current", LookupMainCurrent};
    Button up{buttons, "Up", LookupMainUp};
    Button ls{buttons, "ls", LookupMainLs};
    Button cd{buttons, "cd", LookupMainCd};
    Stretch behind_buttons{buttons};
    ScrollingList list{panel, "Lookup Directories list", LookupMainList};
};

inline std::unique_ptr<LookupDirectoriesMain> Orvik_popup27;
inline LookupDirectoriesMain& lookup_directories_main() { return *Orvik_popup27; }
