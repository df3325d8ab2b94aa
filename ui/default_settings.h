// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Default Settings": how commands are read from the terminal pane and printed.
struct DefaultSettings : CommandFrame {
    DefaultSettings() : CommandFrame("Default Settings") { prompt.set_display_length(40); }

    TextField prompt{panel, "Prompt:"};
};

inline std::unique_ptr<DefaultSettings> Orvik_popup2;
inline DefaultSettings& default_settings() { return *Orvik_popup2; }
