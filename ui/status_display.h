// SPDX-License-Identifier: MIT
#pragma once

#include "shell/notify.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Status Display": what the main window tells about the shell.
struct StatusDisplay : CommandFrame {
    static constexpr int display_on = 0;  ///< an item of "Display"

    StatusDisplay() : CommandFrame("Status Display") { status_file.set_display_length(40); }

    Choice display{panel, "Display", {"On", "Off"}, StatusDisplayOnOff};
    CheckBoxes enable{
        panel, "Enable", {"Clear Case View", "Host Name", "Process ID", "User Name"}, StatusDisplayEnable};
    TextField status_file{panel, "Status File:"};
};

inline std::unique_ptr<StatusDisplay> Orvik_popup13;
inline StatusDisplay& status_display() { return *Orvik_popup13; }
