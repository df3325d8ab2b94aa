// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/tree/layout_node.h"
#include "toolkit/tree/tree_area.h"

#include <functional>

/// Where the nodes of a tree stand: roots at the left below each other, the children of a node in a column to
/// its right, the node centred on them. It owns no nodes. A change costs what the depth of the tree and the
/// logarithm of the number of siblings are, wherever it is.
class TreeLayout {
  public:
    static constexpr int link_length = 50;  ///< from a node's right edge to its children's left edge
    static constexpr int margin = 10;       ///< around the whole tree
    static constexpr int at_end = -1;       ///< as a position among siblings

    TreeLayout();
    TreeLayout(const TreeLayout&) = delete;
    TreeLayout& operator=(const TreeLayout&) = delete;

    /// What the roots are the children of. It shows nothing.
    [[nodiscard]] LayoutNode& ground() { return ground_; }
    [[nodiscard]] const LayoutNode& ground() const { return ground_; }

    /// Puts a node, with its width and height set, and with what stands below it, under a parent.
    void insert(LayoutNode& node, LayoutNode& parent, int position = at_end);
    /// Takes a node out, with what stands below it.
    void remove(LayoutNode& node);
    /// Another width or height of the label.
    void resize(LayoutNode& node, int width, int height);

    /// The label of a node.
    [[nodiscard]] TreeArea area(const LayoutNode& node) const;
    /// The node whose label is there, or null.
    [[nodiscard]] LayoutNode* at(int x, int y) const;
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;

    /// Gives each node with something, or with a link to its children, in an area: a node before its
    /// children, top to bottom. The second argument is its label's place.
    using Visit = std::function<void(LayoutNode&, const TreeArea&)>;
    void visit(const TreeArea& area, const Visit& found) const;

  private:
    struct Corner {
        int x;
        int y;
    };
    [[nodiscard]] Corner block_of(const LayoutNode& node) const;
    void settle(LayoutNode* node);
    std::uint32_t next_priority();

    LayoutNode ground_;
    std::uint32_t random_ = 2463534242;
};
