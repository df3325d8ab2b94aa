// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy Files to Clearcase Vob": a script that copies files into a ClearCase VOB.
struct CopyFilesToClearcaseVob : CommandFrame {
    CopyFilesToClearcaseVob() : CommandFrame("Copy Files to Clearcase Vob") {
        constexpr unsigned generate = 1;
        script.set_value(generate);
        source_directory.set_display_length(40);
        script_file.set_text("$HOME/.orvik-vob-script");
        skip_1.set_text("lost+found");
    }

    CheckBoxes script{panel, "Script", {"Generate", "Execute"}};
    TextField source_directory{panel, "Source Directory:"};
    TextField destination_directory{panel, "Destination Directory:"};
    TextField script_file{panel, "Script File:"};
    TextField skip_1{panel, "Skip 1:"};
    TextField skip_2{panel, "Skip 2:"};
    TextField skip_3{panel, "Skip 3:"};
};

inline std::unique_ptr<CopyFilesToClearcaseVob> Orvik_popup42;
inline CopyFilesToClearcaseVob& copy_files_to_clearcase_vob() { return *Orvik_popup42; }
