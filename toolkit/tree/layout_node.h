// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// What the layout keeps of a node of a tree, in pixels. A node with all that stands below it takes a block,
/// as wide and high as its nodes need; places are told from the block around, so that nothing but the
/// ancestors of a change has to be told of it. The children of a node stand in a balanced tree of their own,
/// which knows their heights: a place among 100,000 siblings is found without going through them.
struct LayoutNode {
    LayoutNode* parent = nullptr;
    LayoutNode* children = nullptr;  ///< the top of their balanced tree

    // The label, and the block.
    int width = 0;
    int height = 0;
    int label_top = 0;     ///< below the block's top
    int children_top = 0;  ///< the block of the first child, below this block's top
    int block_height = 0;
    int reach = 0;  ///< from the label's left edge to the block's right one

    // The place in the balanced tree of the siblings: a treap.
    LayoutNode* up = nullptr;
    LayoutNode* left = nullptr;   ///< siblings above
    LayoutNode* right = nullptr;  ///< siblings below
    LayoutNode* below = nullptr;  ///< the next sibling: going through all of them this way saves time
    std::uint32_t priority = 0;

    // Of this node and the siblings that hang below it in the balanced tree.
    int siblings = 1;
    int stacked = 0;   ///< the heights of their blocks with the gaps behind them
    int farthest = 0;  ///< the greatest reach
};
