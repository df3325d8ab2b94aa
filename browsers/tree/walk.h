// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/file_tag.h"
#include "browsers/tree/listing.h"
#include "toolkit/notify.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class Frame;

// The walk over the tree's selection, which all actions on it share: the selected paths are examined in
// their order, by long work of the window that asks; then the rule is checked, and the action is done.

/// A selected node, and what its path led to when it was examined.
struct WalkedNode {
    NodeReference reference;
    std::string path;
    FileGlance glance;
};

/// What is selected: devices and the like count as nodes only.
struct WalkCounts {
    std::size_t nodes = 0;
    std::size_t directories = 0;
    std::size_t files = 0;
};

/// A check of the selection, with the message for one that fails it.
struct WalkCheck {
    bool (*fails)(const WalkCounts& counts);
    std::string_view message;
};

/// When an action is done: the messages that tell why not, in the order of checking.
struct WalkRule {
    std::string_view none;     ///< nothing is selected
    std::string_view illegal;  ///< a path leads nowhere
    std::vector<WalkCheck> checks;
    bool up_to_illegal = false;   ///< the nodes in front of one that leads nowhere are acted on first
    Frame* also_tells = nullptr;  ///< a window whose left footer shows the message, too
};

/// The first of the directories, or of all nodes where there is none.
const WalkedNode& directory_among(const std::vector<WalkedNode>& nodes);

/// What an action does with the nodes, all of which are in the tree still. Returns its message.
using WalkAction = std::function<Message(const std::vector<WalkedNode>&)>;

/// The selected nodes in their order, not examined yet.
std::vector<WalkedNode> selected_nodes();

/// For what is put into a directory under a new name.
WalkRule one_parent_directory();

/// Walks nodes for a window: it is busy meanwhile, and what is to be said then stands in its left
/// footer. Returns what can be said at once.
Message walk(Frame& asker, const WalkRule& rule, std::vector<WalkedNode> nodes, WalkAction action);
/// The same for the selection.
Message walk_selection(Frame& asker, const WalkRule& rule, WalkAction action);
