// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Subversion Branch/Tag": a branch or a tag of a working copy.
struct SubversionBranchTag : CommandFrame {
    SubversionBranchTag() : CommandFrame("Subversion Branch/Tag") { message.set_display_length(48); }

    TextField branch_tag_name{panel, "Branch/Tag Name:"};
    TextField message{panel, "Message:"};
};

inline std::unique_ptr<SubversionBranchTag> Orvik_popup46;
inline SubversionBranchTag& subversion_branch_tag() { return *Orvik_popup46; }
