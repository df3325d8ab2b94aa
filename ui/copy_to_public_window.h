// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Copy to Public": a copy in another user's public directory.
struct CopyToPublic : CommandFrame {
    CopyToPublic() : CommandFrame("Copy to Public") {
        userid.set_tool_tip("Whose public directory; empty: your own");
        copy.set_default();
    }

    TextField userid{panel, "Userid:"};
    Row buttons{panel, Place::field};
    Button copy{buttons, "Copy", CopyToPublicCopy};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CopyToPublic> Orvik_popup23;
inline CopyToPublic& copy_to_public_window() { return *Orvik_popup23; }
