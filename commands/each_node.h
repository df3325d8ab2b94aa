// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/walk.h"

#include <vector>

#include <sys/stat.h>
#include <sys/types.h>

/// Does something with each node, in their order, until one is of another kind, which is told by `another`,
/// or the action has something to say. What has been done before stays done.
template <typename Action>
Message do_with_each(const std::vector<WalkedNode>& nodes, mode_t kind, std::string_view another,
                     Action action) {
    for (const WalkedNode& node : nodes) {
        if ((node.glance.mode & S_IFMT) != kind) {
            return Message(another);
        }
        Message refusal = action(node);
        if (!refusal.empty()) {
            return refusal;
        }
    }
    return {};
}

/// Does something with each selected regular file of the tree.
template <typename Action>
Message with_each_file(Frame& asker, Action action) {
    return walk_selection(asker, {.none = "No files selected", .illegal = "Illegal file"},
                          [action](const std::vector<WalkedNode>& nodes) {
                              return do_with_each(nodes, S_IFREG, "Not a regular file", action);
                          });
}
