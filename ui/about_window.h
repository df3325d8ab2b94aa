// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <memory>

/// "About": the version, and what this instance runs on.
struct AboutWindow : CommandFrame {
    AboutWindow() : CommandFrame("About") {
        copy.set_default();
        text.set_display_size(72, 14);
    }

    TextPane text{panel, "About text", TextPane::Access::read_only};
    Row buttons{panel};
    Stretch stretch{buttons};
    Button copy{buttons, "Copy", AboutCopy};
};

inline std::unique_ptr<AboutWindow> Orvik_popup49;
inline AboutWindow& about_window() { return *Orvik_popup49; }
