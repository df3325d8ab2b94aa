// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Subversion Commit": what is said about a commit.
struct SubversionCommit : CommandFrame {
    SubversionCommit() : CommandFrame("Subversion Commit") { message.set_display_length(48); }

    TextField message{panel, "Message:"};
};

inline std::unique_ptr<SubversionCommit> Orvik_popup45;
inline SubversionCommit& subversion_commit() { return *Orvik_popup45; }
