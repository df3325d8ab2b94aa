// SPDX-License-Identifier: MIT
#pragma once

#include "commands/clearcase/notify.h"
#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Add New Directory": a directory to be made.
struct AddNewDirectory : CommandFrame {
    AddNewDirectory() : CommandFrame("Add New Directory") { directory_name.set_display_length(36); }

    TextField directory_name{panel, "Directory Name:"};
    Row buttons{panel, Place::field};
    Button add{buttons, "Add", Add_new_directory};
    Button clearcase{buttons, "ClearCase", AddClearCaseDir};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<AddNewDirectory> Orvik_popup33;
inline AddNewDirectory& add_new_directory() { return *Orvik_popup33; }
