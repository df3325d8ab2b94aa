// SPDX-License-Identifier: MIT
#pragma once

#include "commands/clearcase/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy Files to Clearcase Vob": a script that copies files into a ClearCase VOB.
struct CopyFilesToClearcaseVob : CommandFrame {
    static constexpr unsigned generate = 1;
    static constexpr unsigned execute = 2;

    CopyFilesToClearcaseVob() : CommandFrame("Copy Files to Clearcase Vob") {
        script.set_value(generate);
        source_directory.set_display_length(40);
        script_file.set_text("$HOME/.orvik-vob-script");
        skip_1.set_text("lost+found");
        run.set_default();
    }

    CheckBoxes script{panel, "Script", {"Generate", "Execute"}};
    TextField source_directory{panel, "Source Directory:"};
    TextField destination_directory{panel, "Destination Directory:"};
    TextField script_file{panel, "Script File:"};
    TextField skip_1{panel, "Skip 1:"};
    TextField skip_2{panel, "Skip 2:"};
    TextField skip_3{panel, "Skip 3:"};
    Row buttons{panel, Place::field};
    Button get_dest_dir{buttons, "Get Dest Dir", ClearcaseMenuCopyFilesToVobGet};
    Button edit_script_file{buttons, "Edit Script File", CopyFilesToClearcaseVobEdit};
    Button run{buttons, "Run", ClearcaseMenuCopyFIlesToVobRun};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CopyFilesToClearcaseVob> Orvik_popup42;
inline CopyFilesToClearcaseVob& copy_files_to_clearcase_vob() { return *Orvik_popup42; }
