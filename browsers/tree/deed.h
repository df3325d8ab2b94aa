// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/walk.h"
#include "toolkit/notify.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class Frame;

// Changing files from the tree: each of some nodes is acted on by long work of a window, and then the tree
// is changed in place.

/// What acting on one file has come to.
struct Deed {
    std::string_view fault;  ///< the message about it; empty when it was done
    int error = 0;           ///< errno, where the system's reason is told instead of a message
    bool ends = false;       ///< the files behind it are left alone
    bool is_gone = false;    ///< the file is no longer where it was
    std::string new_name;    ///< of what stands in the directory now; empty for nothing
    FileGlance glance;       ///< of that

    [[nodiscard]] bool is_done() const { return fault.empty() && error == 0; }
};

/// What is to be done with some nodes.
struct Deeds {
    std::vector<WalkedNode> nodes;
    WalkedNode directory;                         ///< where new files appear
    std::function<Deed(const WalkedNode&)> deed;  ///< called in a thread, with what the node is by then
    std::string_view illegal = "Illegal file";  ///< said of a path that leads to nothing of its kind any more
    std::string_view meanwhile = {};            ///< said where it takes long
    std::string_view finished = {};             ///< said when all was done
    Frame* also_tells = nullptr;                ///< a window whose left footer shows the message, too
};

/// Acts on the nodes in their order, as work of a window: its right footer counts, Escape stops after the
/// current one. Then the tree gets the new leaves and loses what is gone, and the last message stands in the
/// window's left footer. Returns what can be said at once.
Message act_on_each(Frame& window, const Deeds& deeds);
