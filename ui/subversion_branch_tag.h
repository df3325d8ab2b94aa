// SPDX-License-Identifier: MIT
#pragma once

#include "commands/subversion/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Subversion Branch/Tag": a branch or a tag of a working copy.
struct SubversionBranchTag : CommandFrame {
    SubversionBranchTag() : CommandFrame("Subversion Branch/Tag") {
        message.set_display_length(48);
        branch_tag.set_default();
    }

    TextField branch_tag_name{panel, "Branch/Tag Name:"};
    TextField message{panel, "Message:"};
    Row buttons{panel, Place::field};
    Button branch_tag{buttons, "Branch/tag", Subversion_branch_button};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<SubversionBranchTag> Orvik_popup46;
inline SubversionBranchTag& subversion_branch_tag() { return *Orvik_popup46; }
