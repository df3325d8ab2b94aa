// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Concatenate Files": several files written one after the other into one.
struct ConcatenateFiles : CommandFrame {
    ConcatenateFiles() : CommandFrame("Concatenate Files") {
        output_file_name.set_display_length(32);
        run.set_default();
    }

    NumberField number_of_lines{panel, "Number of lines Included  ( 0 = All ) :"};
    TextField output_file_name{panel, "Output File Name:"};
    Row buttons{panel, Place::field};
    Button run{buttons, "Run", ConcatenateRun};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<ConcatenateFiles> Orvik_popup40;
inline ConcatenateFiles& concatenate_files_window() { return *Orvik_popup40; }
