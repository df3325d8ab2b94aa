// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Remote copy": the file copied to or from another host.
struct RemoteCopy : CommandFrame {
    RemoteCopy() : CommandFrame("Remote copy") { remote_source.set_display_length(40); }

    /// What is copied on this side.
    enum class Side : bool { tree_selection, listed_file };

    /// Opens it for the one or the other, and says for which.
    void open_for(Side wanted) {
        side = wanted;
        set_left_footer("");
        set_right_footer(wanted == Side::listed_file ? "Copies the file of the File List Browser"
                                                     : "Copies what is selected in the tree");
        open();
    }

    Side side = Side::tree_selection;

    TextField remote_source{panel, "Remote Source:"};
    TextField remote_destination{panel, "Remote Destination:"};
    TextField remote_user{panel, "Remote User:"};
    TextField remote_host{panel, "Remote Host:"};
    Row buttons{panel, Place::field};
    Button copy_to_remote{buttons, "Copy to Remote", Copy_to_remote_button};
    Button copy_from_remote{buttons, "Copy from Remote", Copy_from_remote_button};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<RemoteCopy> Orvik_popup22;
inline RemoteCopy& remote_copy() { return *Orvik_popup22; }
