// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Select Files": selecting files in the tree by name.
struct SelectFiles : CommandFrame {
    static constexpr int regular = 1;  ///< of the target files
    static constexpr int directories = 2;

    SelectFiles() : CommandFrame("Select Files") { select.set_default(); }

    Choice match{panel, "Match", {"All", "Beginning", "End"}};
    Choice case_sensitive{panel, "Case Sensitive", {"No", "Yes"}};
    Choice recursive{panel, "Recursive", {"No", "Yes"}};
    Choice target_files{panel, "Target Files", {"All", "Regular", "Directories"}};
    TextField search_string{panel, "Search String:"};
    Row buttons{panel};
    Button select{buttons, "Select", SelectFilesSelectButton};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<SelectFiles> Orvik_popup30;
inline SelectFiles& select_files_window() { return *Orvik_popup30; }
