// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy To Selected Directory": a copy in the selected directory.
struct CopyToSelectedDirectory : CommandFrame {
    CopyToSelectedDirectory() : CommandFrame("Copy To Selected Directory") {
        file_name.set_display_length(36);
        copy.set_default();
    }

    TextField file_name{panel, "File Name:"};
    Row buttons{panel, Place::field};
    Button copy{buttons, "Copy", CopyToSelectedDir};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CopyToSelectedDirectory> Orvik_popup35;
inline CopyToSelectedDirectory& copy_to_selected_directory() { return *Orvik_popup35; }
