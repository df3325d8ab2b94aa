// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Remote copy": the file copied to or from another host.
struct RemoteCopy : CommandFrame {
    RemoteCopy() : CommandFrame("Remote copy") { remote_source.set_display_length(40); }

    bool copies_listed_file = false;  ///< the list browser's; otherwise those that are selected in the tree

    TextField remote_source{panel, "Remote Source:"};
    TextField remote_destination{panel, "Remote Destination:"};
    TextField remote_user{panel, "Remote User:"};
    TextField remote_host{panel, "Remote Host:"};
};

inline std::unique_ptr<RemoteCopy> Orvik_popup22;
inline RemoteCopy& remote_copy() { return *Orvik_popup22; }
