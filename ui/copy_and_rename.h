// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy and Rename": a copy under a new name.
struct CopyAndRename : CommandFrame {
    CopyAndRename() : CommandFrame("Copy and Rename") { new_name.set_display_length(36); }

    TextField new_name{panel, "New Name:"};
    Row buttons{panel, Place::field};
    Button copy{buttons, "Copy", CopyAndRenameCopy};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CopyAndRename> Orvik_popup34;
inline CopyAndRename& copy_and_rename() { return *Orvik_popup34; }
