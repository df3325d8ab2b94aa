// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/tree/layout.h"
#include "toolkit/tree/node_record.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class TreeNode : public LayoutNode {
  public:
    explicit TreeNode(std::unique_ptr<NodeRecord> kept) : record(std::move(kept)) {}

    /// A directory of which nobody knows yet what is in it.
    [[nodiscard]] bool is_marked() const { return directory && !opened; }

    std::unique_ptr<NodeRecord> record;
    TreeNode* selected_before = nullptr;
    TreeNode* selected_after = nullptr;
    std::uint8_t font_size = 0;
    bool directory = false;
    bool opened = false;
    bool selected = false;
    bool accessible = false;      ///< assistive programs have been told of it
    bool children_known = false;  ///< and have asked how many children it has
};

/// The nodes of a canvas with their places, and which of them are selected, in what order. It knows no
/// window.
class NodeTree {
  public:
    NodeTree() = default;
    ~NodeTree();
    NodeTree(const NodeTree&) = delete;
    NodeTree& operator=(const NodeTree&) = delete;

    [[nodiscard]] const TreeLayout& layout() const { return layout_; }
    [[nodiscard]] int size() const { return size_; }

    /// Puts a node, with its width and height set, under a parent, or among the roots where that is null.
    TreeNode* add(std::unique_ptr<TreeNode> node, TreeNode* parent, int position);
    /// Destroys a node with all below it; `forget` is called with each, before any is gone.
    void destroy(TreeNode* node, const std::function<void(TreeNode*)>& forget);
    void resize(TreeNode* node, int width, int height) { layout_.resize(*node, width, height); }

    /// Null for a root.
    [[nodiscard]] TreeNode* parent(const TreeNode* node) const;
    // Of a node's children, or of the roots where it is null.
    [[nodiscard]] std::vector<TreeNode*> children(const TreeNode* node) const;
    [[nodiscard]] int child_count(const TreeNode* node) const;
    [[nodiscard]] TreeNode* child(const TreeNode* node, int index) const;
    [[nodiscard]] int position(const TreeNode* node) const;
    [[nodiscard]] TreeNode* last_child(const TreeNode* node) const;

    [[nodiscard]] TreeNode* next_sibling(TreeNode* node) const;
    // The nearest node of the same distance from its root, whichever that is; null where there is none.
    [[nodiscard]] TreeNode* above_in_column(TreeNode* node) const;
    [[nodiscard]] TreeNode* below_in_column(TreeNode* node) const;
    [[nodiscard]] TreeNode* at(int x, int y) const;
    /// The nodes whose labels an area touches, top to bottom, then left to right.
    [[nodiscard]] std::vector<TreeNode*> touched_by(const TreeArea& area) const;

    // Each tells whether it changed anything.
    bool select(TreeNode* node);
    bool deselect(TreeNode* node);
    bool clear_selection();
    [[nodiscard]] std::vector<TreeNode*> selected() const;
    [[nodiscard]] int selected_count() const { return selected_count_; }

  private:
    [[nodiscard]] LayoutNode& under(TreeNode* parent) {
        return parent == nullptr ? layout_.ground() : *parent;
    }
    [[nodiscard]] LayoutNode* children_of(const TreeNode* node) const;

    TreeLayout layout_;
    int size_ = 0;
    TreeNode* first_selected_ = nullptr;
    TreeNode* last_selected_ = nullptr;
    int selected_count_ = 0;
};
