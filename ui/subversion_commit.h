// SPDX-License-Identifier: MIT
#pragma once

#include "commands/subversion/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Subversion Commit": what is said about a commit.
struct SubversionCommit : CommandFrame {
    SubversionCommit() : CommandFrame("Subversion Commit") {
        message.set_display_length(48);
        commit.set_default();
    }

    TextField message{panel, "Message:"};
    Row buttons{panel, Place::field};
    Button commit{buttons, "Commit", Subversion_commit_button};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<SubversionCommit> Orvik_popup45;
inline SubversionCommit& subversion_commit() { return *Orvik_popup45; }
