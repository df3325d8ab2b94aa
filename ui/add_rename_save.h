// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Add / Rename / Save": a new name for a file.
struct AddRenameSave : CommandFrame {
    AddRenameSave() : CommandFrame("Add / Rename / Save") { new_name.set_display_length(36); }

    TextField new_name{panel, "New Name:"};
};

inline std::unique_ptr<AddRenameSave> Orvik_popup32;
inline AddRenameSave& add_rename_save() { return *Orvik_popup32; }
