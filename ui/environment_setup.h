// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Environment Setup Window": what the shell is set up with when it starts.
struct EnvironmentSetup : CommandFrame {
    EnvironmentSetup() : CommandFrame("Environment Setup Window") {
        precmd.set_display_length(56);
        notebook_directory.set_text("$HOME");
        messageboard_directory.set_text("$HOME");
    }

    TextField working_directory_1{panel, "Working Directory 1:"};
    TextField working_directory_2{panel, "Working Directory 2:"};
    TextField working_directory_3{panel, "Working Directory 3:"};
    TextField working_directory_4{panel, "Working Directory 4:"};
    TextField environment_setup_file{panel, "Environment Setup File:"};
    TextField startup_directory{panel, "Start-up Directory:"};
    TextField precmd{panel, "Precmd:"};
    TextField notebook_directory{panel, "Notebook Directory:"};
    TextField messageboard_directory{panel, "Messageboard Directory:"};
};

inline std::unique_ptr<EnvironmentSetup> Orvik_popup1;
inline EnvironmentSetup& environment_setup() { return *Orvik_popup1; }
