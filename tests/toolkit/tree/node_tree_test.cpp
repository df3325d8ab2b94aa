// SPDX-License-Identifier: MIT
#include "toolkit/tree/node_tree.h"

#include "toolkit/tree/siblings.h"

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Nodes = std::vector<TreeNode*>;
using Places = std::map<TreeNode*, TreeArea>;

/// The same tree kept as lists, and laid out from nothing each time.
struct PlainTree {
    std::map<TreeNode*, Nodes> children;  ///< the roots are those of null
    std::map<TreeNode*, TreeNode*> parent;
    Nodes selected;

    void insert(TreeNode* node, TreeNode* above, int position) {
        Nodes& list = children[above];
        const auto size = static_cast<int>(list.size());
        list.insert(list.begin() + (position < 0 ? size : std::min(position, size)), node);
        parent[node] = above;
    }
    void remove(TreeNode* node) {
        std::erase(children[parent.at(node)], node);
        for (TreeNode* gone : branch(node)) {
            parent.erase(gone);
            children.erase(gone);
            std::erase(selected, gone);
        }
    }
    [[nodiscard]] Nodes branch(TreeNode* node) {
        Nodes nodes{node};
        for (TreeNode* child : Nodes(children[node])) {
            const Nodes below = branch(child);
            nodes.insert(nodes.end(), below.begin(), below.end());
        }
        return nodes;
    }

    /// The labels' places.
    [[nodiscard]] Places places() {
        Places result;
        int y = TreeLayout::margin;
        for (TreeNode* root : children[nullptr]) {
            y += place(root, TreeLayout::margin, y, result) + siblings::gap;
        }
        return result;
    }

  private:
    /// The height of the node's block, which begins at y.
    int place(TreeNode* node, int x, int y, Places& result) {
        const Nodes below = children[node];
        result[node] = {x, y, node->width, node->height};
        if (below.empty()) {
            return node->height;
        }
        int end = y;
        for (TreeNode* child : below) {
            end += place(child, x + node->width + TreeLayout::link_length, end, result) + siblings::gap;
        }
        end -= siblings::gap;
        const auto middle = [&](TreeNode* child) { return result[child].y - y + child->height / 2; };
        result[node].y = y + (middle(below.front()) + middle(below.back())) / 2 - node->height / 2;
        if (const int above = y - result[node].y; above > 0) {
            for (TreeNode* lower : branch(node)) {
                result[lower].y += above;
            }
            end += above;
        }
        return std::max(end, result[node].bottom()) - y;
    }
};

/// Random changes of a tree; after each it must be what the plain one is.
class RandomTree {
  public:
    explicit RandomTree(unsigned seed) : random_(seed) {}

    void step() {
        TreeNode* node = any(0);
        if (node == nullptr) {
            add();
            return;
        }
        switch (below(8)) {
            case 0:
                destroy(node);
                break;
            case 1:
                tree_.resize(node, 5 + below(100), 1 + below(30));
                break;
            case 2:
                select(node);
                break;
            case 3:
                EXPECT_EQ(tree_.deselect(node), std::erase(plain_.selected, node) > 0);
                break;
            default:
                add();
        }
    }

    void compare() {
        const Places places = plain_.places();
        int width = 0;
        int height = 0;
        for (const auto& [node, area] : places) {
            ASSERT_EQ(tree_.layout().area(*node), area);
            ASSERT_EQ(tree_.at(area.x, area.y), node);
            ASSERT_EQ(tree_.at(area.right() - 1, area.bottom() - 1), node);
            ASSERT_NE(tree_.at(area.right(), area.y), node);
            ASSERT_EQ(tree_.parent(node), plain_.parent.at(node));
            width = std::max(width, area.right() + TreeLayout::margin);
            height = std::max(height, area.bottom() + TreeLayout::margin);
        }
        ASSERT_EQ(tree_.layout().width(), width);
        ASSERT_EQ(tree_.layout().height(), height);
        ASSERT_EQ(tree_.size(), static_cast<int>(places.size()));
        ASSERT_EQ(tree_.selected(), plain_.selected);
        ASSERT_EQ(tree_.selected_count(), static_cast<int>(plain_.selected.size()));
        compare_siblings(nullptr);
        for (const auto& [node, area] : places) {
            compare_siblings(node);
        }
        compare_columns();
        compare_touched(places);
    }

  private:
    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(random_); }
    int any_position() { return below(3) == 0 ? TreeLayout::at_end : below(6); }
    /// Null in so many cases beside those of the nodes, and where there are none.
    TreeNode* any(int chances_of_none) {
        const auto index = static_cast<std::size_t>(below(static_cast<int>(plain_.parent.size()) +
                                                          chances_of_none + (plain_.parent.empty() ? 1 : 0)));
        return index < plain_.parent.size()
                   ? std::next(plain_.parent.begin(), static_cast<std::ptrdiff_t>(index))->first
                   : nullptr;
    }

    void add() {
        auto node = std::make_unique<TreeNode>(std::make_unique<NodeRecord>("node"));
        node->width = 5 + below(100);
        node->height = 1 + below(30);
        TreeNode* parent = any(3);
        const int position = any_position();
        plain_.insert(tree_.add(std::move(node), parent, position), parent, position);
    }
    void destroy(TreeNode* node) {
        std::set<TreeNode*> forgotten;
        tree_.destroy(node, [&](TreeNode* gone) { forgotten.insert(gone); });
        const Nodes expected = plain_.branch(node);
        EXPECT_EQ(forgotten, std::set<TreeNode*>(expected.begin(), expected.end()));
        plain_.remove(node);
    }
    void select(TreeNode* node) {
        const bool changes = std::ranges::count(plain_.selected, node) == 0;
        EXPECT_EQ(tree_.select(node), changes);
        if (changes) {
            plain_.selected.push_back(node);
        }
    }

    void compare_siblings(TreeNode* parent) {
        const Nodes& list = plain_.children[parent];
        ASSERT_EQ(tree_.children(parent), list);
        for (std::size_t i = 0; i < list.size(); ++i) {
            ASSERT_EQ(tree_.position(list[i]), static_cast<int>(i));
            ASSERT_EQ(tree_.child(parent, static_cast<int>(i)), list[i]);
        }
    }
    /// From above to below, by their distance from the root.
    void collect_columns(TreeNode* parent, std::size_t level, std::vector<Nodes>& columns) {
        columns.resize(std::max(columns.size(), level + 1));
        for (TreeNode* node : Nodes(plain_.children[parent])) {
            columns[level].push_back(node);
            collect_columns(node, level + 1, columns);
        }
    }
    void compare_columns() {
        std::vector<Nodes> columns;
        collect_columns(nullptr, 0, columns);
        for (const Nodes& column : columns) {
            for (std::size_t i = 0; i < column.size(); ++i) {
                ASSERT_EQ(tree_.above_in_column(column[i]), i == 0 ? nullptr : column[i - 1]);
                ASSERT_EQ(tree_.below_in_column(column[i]), i + 1 == column.size() ? nullptr : column[i + 1]);
            }
        }
    }
    void compare_touched(const Places& places) {
        const TreeArea area{below(400), below(400), 1 + below(300), 1 + below(300)};
        std::vector<std::tuple<int, int, TreeNode*>> expected;
        for (const auto& [node, label] : places) {
            if (label.touches(area)) {
                expected.emplace_back(label.y, label.x, node);
            }
        }
        std::ranges::sort(expected);
        Nodes nodes;
        for (const auto& [y, x, node] : expected) {
            nodes.push_back(node);
        }
        ASSERT_EQ(tree_.touched_by(area), nodes);
    }

    std::mt19937 random_;
    NodeTree tree_;
    PlainTree plain_;
};

TEST(NodeTree, AfterEveryChangeIsWhatATreeLaidOutFromNothingIs) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        RandomTree tree(seed);
        for (int change = 0; change < 300; ++change) {
            tree.step();
            tree.compare();
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << ", change " << change;
        }
    }
}

}  // namespace
