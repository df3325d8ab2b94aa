// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Define Label": the label of the main window.
struct DefineLabel : CommandFrame {
    DefineLabel() : CommandFrame("Define Label") { label.set_display_length(40); }

    TextField label{panel, "Label:", DefineLabelApply};
};

inline std::unique_ptr<DefineLabel> Orvik_popup4;
inline DefineLabel& define_label() { return *Orvik_popup4; }
