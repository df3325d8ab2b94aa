// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/frame.h"
#include "toolkit/help_pane.h"

#include <memory>

/// "Help": the help texts.
struct HelpWindow : Frame {
    HelpWindow() : Frame("Help") { text.set_display_size(84, 32); }

    HelpPane text{*this, "Help text"};
};

inline std::unique_ptr<HelpWindow> Orvik_popup48;
inline HelpWindow& help_window() { return *Orvik_popup48; }
