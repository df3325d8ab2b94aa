// SPDX-License-Identifier: MIT
#include "toolkit/tree/layout.h"

#include "toolkit/tree/siblings.h"

#include <algorithm>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr int link = TreeLayout::link_length;

/// The same tree kept as lists, and laid out from nothing each time.
class PlainTree {
  public:
    explicit PlainTree(LayoutNode& ground) : ground_(&ground) {}

    std::map<LayoutNode*, std::vector<LayoutNode*>> children;
    std::map<LayoutNode*, LayoutNode*> parent;

    void insert(LayoutNode* node, LayoutNode* above, int position) {
        std::vector<LayoutNode*>& list = children[above];
        const auto size = static_cast<int>(list.size());
        list.insert(list.begin() + (position < 0 ? size : std::min(position, size)), node);
        parent[node] = above;
    }
    void remove(LayoutNode* node) {
        std::erase(children[parent[node]], node);
        parent.erase(node);
    }
    [[nodiscard]] std::vector<LayoutNode*> branch(LayoutNode* node) {
        std::vector<LayoutNode*> nodes{node};
        for (LayoutNode* child : children[node]) {
            const std::vector<LayoutNode*> below = branch(child);
            nodes.insert(nodes.end(), below.begin(), below.end());
        }
        return nodes;
    }

    /// The labels' places.
    [[nodiscard]] std::map<LayoutNode*, TreeArea> places() {
        std::map<LayoutNode*, TreeArea> result;
        int y = TreeLayout::margin;
        for (LayoutNode* root : children[ground_]) {
            y += place(root, TreeLayout::margin, y, result) + siblings::gap;
        }
        return result;
    }

  private:
    static int middle(const TreeArea& area) { return area.y + area.height / 2; }
    static void shift(std::vector<LayoutNode*> nodes, int down, std::map<LayoutNode*, TreeArea>& result) {
        for (LayoutNode* node : nodes) {
            result[node].y += down;
        }
    }
    /// The height of the node's block, which begins at y.
    int place(LayoutNode* node, int x, int y, std::map<LayoutNode*, TreeArea>& result) {
        const std::vector<LayoutNode*>& below = children[node];
        result[node] = {x, y, node->width, node->height};
        if (below.empty()) {
            return node->height;
        }
        int end = y;
        for (LayoutNode* child : below) {
            end += place(child, x + node->width + link, end, result) + siblings::gap;
        }
        end -= siblings::gap;
        // From the first child's top: halves are rounded there.
        const int centre = y + (middle(result[below.front()]) - y + middle(result[below.back()]) - y) / 2;
        result[node].y = centre - node->height / 2;
        if (const int above = y - result[node].y; above > 0) {
            shift(branch(node), above, result);
            end += above;
        }
        return std::max(end, result[node].bottom()) - y;
    }

    LayoutNode* ground_;
};

/// Random changes of a tree; after each it must be what the plain one is.
class RandomTree {
  public:
    explicit RandomTree(unsigned seed) : random_(seed) {}

    void step() {
        switch (below(6)) {
            case 0:
                remove();
                break;
            case 1:
                move();
                break;
            case 2:
                resize();
                break;
            default:
                add();
        }
    }

    void compare() {
        const std::map<LayoutNode*, TreeArea> places = plain_.places();
        int width = 0;
        int height = 0;
        for (const auto& [node, area] : places) {
            ASSERT_EQ(layout_.area(*node), area);
            ASSERT_EQ(layout_.at(area.x, area.y), node);
            ASSERT_EQ(layout_.at(area.right() - 1, area.bottom() - 1), node);
            ASSERT_EQ(siblings::at(node->parent->children, siblings::index_of(*node)), node);
            width = std::max(width, area.right() + TreeLayout::margin);
            height = std::max(height, area.bottom() + TreeLayout::margin);
        }
        ASSERT_EQ(layout_.width(), width);
        ASSERT_EQ(layout_.height(), height);
        compare_order();
        compare_visited(places);
    }

  private:
    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(random_); }
    LayoutNode* any() { return nodes_[static_cast<std::size_t>(below(static_cast<int>(nodes_.size())))]; }
    LayoutNode* any_parent() { return nodes_.empty() || below(8) == 0 ? &layout_.ground() : any(); }
    int any_position() { return below(3) == 0 ? TreeLayout::at_end : below(6); }

    void add() {
        LayoutNode* node = &store_.emplace_back();
        node->width = 5 + below(100);
        node->height = 1 + below(30);
        LayoutNode* parent = any_parent();
        const int position = any_position();
        layout_.insert(*node, *parent, position);
        plain_.insert(node, parent, position);
        nodes_.push_back(node);
    }
    void remove() {
        if (nodes_.empty()) {
            return;
        }
        LayoutNode* node = any();
        for (LayoutNode* gone : plain_.branch(node)) {
            std::erase(nodes_, gone);
        }
        layout_.remove(*node);
        plain_.remove(node);
    }
    void move() {
        LayoutNode* node = nodes_.empty() ? nullptr : any();
        LayoutNode* parent = any_parent();
        if (node == nullptr || std::ranges::count(plain_.branch(node), parent) > 0) {
            return;
        }
        const int position = any_position();
        layout_.remove(*node);
        layout_.insert(*node, *parent, position);
        plain_.remove(node);
        plain_.insert(node, parent, position);
    }
    void resize() {
        if (!nodes_.empty()) {
            layout_.resize(*any(), 5 + below(100), 1 + below(30));
        }
    }

    void compare_order() {
        for (const auto& [parent, list] : plain_.children) {
            if (parent != &layout_.ground() && !plain_.parent.contains(parent)) {
                continue;
            }
            std::vector<LayoutNode*> forward;
            std::vector<LayoutNode*> backward;
            for (auto* node = siblings::first(parent->children); node != nullptr;
                 node = siblings::next(*node)) {
                forward.push_back(node);
            }
            for (auto* node = siblings::last(parent->children); node != nullptr;
                 node = siblings::previous(*node)) {
                backward.insert(backward.begin(), node);
            }
            ASSERT_EQ(forward, list);
            ASSERT_EQ(backward, list);
        }
    }
    void compare_visited(const std::map<LayoutNode*, TreeArea>& places) {
        const TreeArea area{below(400), below(400), 1 + below(300), 1 + below(300)};
        std::set<LayoutNode*> expected;
        std::set<LayoutNode*> seen;
        for (const auto& [node, label] : places) {
            if (label.touches(area)) {
                expected.insert(node);
            }
        }
        layout_.visit(area, [&](LayoutNode& node, const TreeArea& label) {
            ASSERT_EQ(label, places.at(&node));
            if (label.touches(area)) {
                ASSERT_TRUE(seen.insert(&node).second);
            }
        });
        ASSERT_EQ(seen, expected);
    }

    std::mt19937 random_;
    TreeLayout layout_;
    PlainTree plain_{layout_.ground()};
    std::deque<LayoutNode> store_;
    std::vector<LayoutNode*> nodes_;
};

TEST(TreeLayout, EveryChangeLeavesWhatALayoutFromNothingGives) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomTree tree(seed);
        for (int change = 0; change < 200; ++change) {
            tree.step();
            tree.compare();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << ", change " << change;
        }
    }
}

}  // namespace
