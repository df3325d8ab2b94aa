// SPDX-License-Identifier: MIT
#pragma once

#include "commands/clearcase/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Create and Attach Label": ClearCase labels.
struct CreateAndAttachLabel : CommandFrame {
    CreateAndAttachLabel() : CommandFrame("Create and Attach Label") { label.set_display_length(36); }

    CheckBox recursive{panel, "Recursive"};
    CheckBox replace{panel, "Replace"};
    TextField label{panel, "Label:"};
    TextField version{panel, "Version:"};
    Row buttons{panel, Place::field};
    Button display{buttons, "Display", CreateAndSetLabelDisplay};
    Button find{buttons, "Find", CreateAndSetLabelFind};
    Button create{buttons, "Create", CreateAndSetCreate};
    Button attach{buttons, "Attach", CreateSetLabelAttach};
    Button remove_button{buttons, "Remove", CreateAndAttachRemove};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CreateAndAttachLabel> Orvik_popup43;
inline CreateAndAttachLabel& create_and_attach_label() { return *Orvik_popup43; }
