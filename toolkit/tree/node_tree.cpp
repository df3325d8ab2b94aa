// SPDX-License-Identifier: MIT
#include "toolkit/tree/node_tree.h"

#include "toolkit/tree/siblings.h"

#include <algorithm>
#include <utility>

namespace {

TreeNode* tree_node(LayoutNode* node) { return static_cast<TreeNode*>(node); }

/// A node with all below it, a node before its children.
std::vector<TreeNode*> branch_of(TreeNode* node) {
    std::vector<TreeNode*> branch{node};
    for (std::size_t done = 0; done < branch.size(); ++done) {
        for (LayoutNode* child = siblings::first(branch[done]->children); child != nullptr;
             child = siblings::next(*child)) {
            branch.push_back(tree_node(child));
        }
    }
    return branch;
}

/// Which way to go through siblings.
struct Way {
    LayoutNode* (*first)(LayoutNode*);
    LayoutNode* (*next)(LayoutNode&);
};
constexpr Way upward{siblings::last, siblings::previous};
constexpr Way downward{siblings::first, siblings::next};

/// The first node so many levels below this one; null where it is not that deep.
LayoutNode* first_below(LayoutNode* node, int levels, const Way& way) {
    LayoutNode* found = levels == 0 ? node : nullptr;
    LayoutNode* child = levels == 0 ? nullptr : way.first(node->children);
    for (; child != nullptr && found == nullptr; child = way.next(*child)) {
        found = first_below(child, levels - 1, way);
    }
    return found;
}

/// Looks among the siblings, then below those of the parent, and so on.
TreeNode* in_column(LayoutNode* node, const Way& way) {
    for (int levels = 0; node->parent != nullptr; node = node->parent, ++levels) {
        for (LayoutNode* other = way.next(*node); other != nullptr; other = way.next(*other)) {
            if (LayoutNode* found = first_below(other, levels, way); found != nullptr) {
                return tree_node(found);
            }
        }
    }
    return nullptr;
}

}  // namespace

NodeTree::~NodeTree() {
    for (TreeNode* root : children(nullptr)) {
        destroy(root, [](TreeNode* /*node*/) {});
    }
}

TreeNode* NodeTree::add(std::unique_ptr<TreeNode> node, TreeNode* parent, int position) {
    layout_.insert(*node, under(parent), position);
    ++size_;
    return node.release();
}

void NodeTree::destroy(TreeNode* node, const std::function<void(TreeNode*)>& forget) {
    std::vector<TreeNode*> branch = branch_of(node);
    for (TreeNode* gone : branch) {
        deselect(gone);
        forget(gone);
    }
    layout_.remove(*node);
    size_ -= static_cast<int>(branch.size());
    std::ranges::reverse(branch);
    for (const TreeNode* gone : branch) {
        delete gone;
    }
}

LayoutNode* NodeTree::children_of(const TreeNode* node) const {
    return node == nullptr ? layout_.ground().children : node->children;
}

TreeNode* NodeTree::parent(const TreeNode* node) const {
    return node->parent == &layout_.ground() ? nullptr : tree_node(node->parent);
}

std::vector<TreeNode*> NodeTree::children(const TreeNode* node) const {
    std::vector<TreeNode*> list;
    list.reserve(static_cast<std::size_t>(child_count(node)));
    for (LayoutNode* child = siblings::first(children_of(node)); child != nullptr;
         child = siblings::next(*child)) {
        list.push_back(tree_node(child));
    }
    return list;
}

int NodeTree::child_count(const TreeNode* node) const { return siblings::count(children_of(node)); }

TreeNode* NodeTree::child(const TreeNode* node, int index) const {
    return tree_node(siblings::at(children_of(node), index));
}

int NodeTree::position(const TreeNode* node) const { return siblings::index_of(*node); }

TreeNode* NodeTree::last_child(const TreeNode* node) const {
    return tree_node(siblings::last(children_of(node)));
}

TreeNode* NodeTree::next_sibling(TreeNode* node) const { return tree_node(siblings::next(*node)); }

TreeNode* NodeTree::above_in_column(TreeNode* node) const { return in_column(node, upward); }

TreeNode* NodeTree::below_in_column(TreeNode* node) const { return in_column(node, downward); }

TreeNode* NodeTree::at(int x, int y) const { return tree_node(layout_.at(x, y)); }

std::vector<TreeNode*> NodeTree::touched_by(const TreeArea& area) const {
    std::vector<std::pair<std::uint64_t, TreeNode*>> found;  // by place: one number is sorted sooner than two
    layout_.visit(area, [&](LayoutNode& node, const TreeArea& label) {
        if (label.touches(area)) {
            const auto row = static_cast<std::uint64_t>(label.y);
            found.emplace_back(row << 32 | static_cast<std::uint32_t>(label.x), tree_node(&node));
        }
    });
    std::ranges::sort(found, {}, [](const auto& placed) { return placed.first; });
    std::vector<TreeNode*> nodes(found.size());
    std::ranges::transform(found, nodes.begin(), [](const auto& placed) { return placed.second; });
    return nodes;
}

bool NodeTree::select(TreeNode* node) {
    if (node->selected) {
        return false;
    }
    node->selected = true;
    node->selected_before = last_selected_;
    (last_selected_ == nullptr ? first_selected_ : last_selected_->selected_after) = node;
    last_selected_ = node;
    ++selected_count_;
    return true;
}

bool NodeTree::deselect(TreeNode* node) {
    if (!node->selected) {
        return false;
    }
    TreeNode* before = std::exchange(node->selected_before, nullptr);
    TreeNode* after = std::exchange(node->selected_after, nullptr);
    (before == nullptr ? first_selected_ : before->selected_after) = after;
    (after == nullptr ? last_selected_ : after->selected_before) = before;
    node->selected = false;
    --selected_count_;
    return true;
}

bool NodeTree::clear_selection() {
    const bool changed = first_selected_ != nullptr;
    while (first_selected_ != nullptr) {
        deselect(first_selected_);
    }
    return changed;
}

std::vector<TreeNode*> NodeTree::selected() const {
    std::vector<TreeNode*> list;
    list.reserve(static_cast<std::size_t>(selected_count_));
    for (TreeNode* node = first_selected_; node != nullptr; node = node->selected_after) {
        list.push_back(node);
    }
    return list;
}
