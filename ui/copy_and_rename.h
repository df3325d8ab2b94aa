// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy and Rename": a copy under a new name.
struct CopyAndRename : CommandFrame {
    CopyAndRename() : CommandFrame("Copy and Rename") { new_name.set_display_length(36); }

    TextField new_name{panel, "New Name:"};
};

inline std::unique_ptr<CopyAndRename> Orvik_popup34;
inline CopyAndRename& copy_and_rename() { return *Orvik_popup34; }
