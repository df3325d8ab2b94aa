// SPDX-License-Identifier: MIT
#pragma once

#include "commands/clearcase/notify.h"
#include "commands/notify.h"
#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Add / Rename / Save": a new name for a file.
struct AddRenameSave : CommandFrame {
    AddRenameSave() : CommandFrame("Add / Rename / Save") { new_name.set_display_length(36); }

    TextField new_name{panel, "New Name:"};
    Row buttons{panel, Place::field};
    Button clearcase_rename{buttons, "ClearCase Rename", ClearCaseRename};
    Button rename_button{buttons, "Rename", Rename_file_button};
    Button new_button{buttons, "New", Add_file_button};
    Button save{buttons, "Save", Save_setup_button};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<AddRenameSave> Orvik_popup32;
inline AddRenameSave& add_rename_save() { return *Orvik_popup32; }
