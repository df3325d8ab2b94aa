// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Generate File List": the names of the listed files, written to a file.
struct GenerateFileList : CommandFrame {
    static constexpr int selected = 1;

    GenerateFileList() : CommandFrame("Generate File List") {
        file_name.set_display_length(36);
        file_name.set_text("/tmp/filelist.txt");
    }

    Row buttons{panel, Place::field};
    Button run{buttons, "Run", GenerateFileListRun};
    Button edit{buttons, "Edit", GenerateFileListEdit};
    Stretch behind_buttons{buttons};
    Choice select{panel, "Select", {"All Files", "Regular Files", "Directories"}};
    Choice include{panel, "Include", {"Full List", "Selected"}, GenerateFileListInclude};
    TextField file_name{panel, "File Name:"};
};

inline std::unique_ptr<GenerateFileList> Orvik_popup31;
inline GenerateFileList& generate_file_list() { return *Orvik_popup31; }
