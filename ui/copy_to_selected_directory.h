// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy To Selected Directory": a copy in the selected directory.
struct CopyToSelectedDirectory : CommandFrame {
    CopyToSelectedDirectory() : CommandFrame("Copy To Selected Directory") {
        file_name.set_display_length(36);
    }

    TextField file_name{panel, "File Name:"};
};

inline std::unique_ptr<CopyToSelectedDirectory> Orvik_popup35;
inline CopyToSelectedDirectory& copy_to_selected_directory() { return *Orvik_popup35; }
