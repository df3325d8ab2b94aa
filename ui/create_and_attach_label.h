// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Create and Attach Label": ClearCase labels.
struct CreateAndAttachLabel : CommandFrame {
    CreateAndAttachLabel() : CommandFrame("Create and Attach Label") {}

    CheckBox recursive{panel, "Recursive"};
    CheckBox replace{panel, "Replace"};
    TextField label{panel, "Label:"};
    TextField version{panel, "Version:"};
};

inline std::unique_ptr<CreateAndAttachLabel> Orvik_popup43;
inline CreateAndAttachLabel& create_and_attach_label() { return *Orvik_popup43; }
