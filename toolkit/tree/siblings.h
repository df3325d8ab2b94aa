// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/tree/layout_node.h"

/// The children of a node in their order: a treap whose links are in the nodes. `top` is null for no
/// children. All of it takes time in the logarithm of their number.
namespace siblings {

/// Pixels between two blocks.
inline constexpr int gap = 2;

/// Puts a node before the one at the index, or at the end.
void insert(LayoutNode*& top, LayoutNode& node, int index);
void remove(LayoutNode*& top, LayoutNode& node);
/// To be called when the block of a node has changed. Whether anything has changed for all siblings together.
bool refresh_up(LayoutNode& node);

[[nodiscard]] int count(const LayoutNode* top);
/// Null where there is none.
[[nodiscard]] LayoutNode* at(LayoutNode* top, int index);
[[nodiscard]] LayoutNode* first(LayoutNode* top);
[[nodiscard]] LayoutNode* last(LayoutNode* top);
[[nodiscard]] LayoutNode* next(LayoutNode& node);
[[nodiscard]] LayoutNode* previous(LayoutNode& node);
[[nodiscard]] int index_of(const LayoutNode& node);

/// Where the block of a node begins, below that of the first sibling.
[[nodiscard]] int offset_of(const LayoutNode& node);
/// The node whose block, with the gap behind it, holds an offset; the first or last one beyond the ends.
[[nodiscard]] LayoutNode* at_offset(LayoutNode* top, int offset);
/// The height of all blocks together.
[[nodiscard]] int height(const LayoutNode* top);
/// The greatest reach.
[[nodiscard]] int reach(const LayoutNode* top);

}  // namespace siblings
