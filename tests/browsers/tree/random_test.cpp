// SPDX-License-Identifier: MIT
// Random steps on a tree whose files change outside: nothing remembers a node that is gone.
#include "browsers/paths.h"
#include "tests/browsers/tree/tree_windows.h"

#include <fstream>
#include <functional>
#include <random>

namespace fs = std::filesystem;

namespace {

class RandomSteps : public TreeWindows {
  protected:
    [[nodiscard]] std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }
    static void collect(TreeNode* node, std::vector<TreeNode*>& nodes) {
        nodes.push_back(node);
        for (TreeNode* child : file_tree().children(node)) {
            collect(child, nodes);
        }
    }
    static std::vector<TreeNode*> all_nodes() {
        std::vector<TreeNode*> nodes;
        for (TreeNode* node : file_tree().roots()) {
            collect(node, nodes);
        }
        return nodes;
    }
    [[nodiscard]] TreeNode* any_node() {
        const std::vector<TreeNode*> nodes = all_nodes();
        return nodes.empty() ? nullptr : nodes[below(nodes.size())];
    }
    void select_some() {
        file_tree().clear_selection();
        for (std::size_t count = below(3) == 0 ? 2 : 1; count > 0; --count) {
            if (TreeNode* const node = any_node()) {
                file_tree().select(node);
            }
        }
        (void)FileTreeClick();
    }
    void change_outside() {
        const std::string directories[] = {path("top"), path("top/sub"), path("top/sub/deep")};
        const std::string one = directories[below(3)] + "/f" + std::to_string(below(3));
        const std::string other = directories[below(3)] + "/f" + std::to_string(below(3));
        std::error_code failed;
        fs::rename(one, other, failed);
        if (failed) {
            fs::create_directories(fs::path(one).parent_path(), failed);
            std::ofstream{one} << "x";
        }
        if (below(10) == 0) {
            fs::remove_all(directories[2], failed);
        }
    }
    static void check() {
        const std::vector<TreeNode*> nodes = all_nodes();
        const std::set<TreeNode*> present(nodes.begin(), nodes.end());
        ASSERT_EQ(static_cast<std::size_t>(file_tree().size()), nodes.size());
        const std::vector<TreeNode*> selected = rectobj_get_selected_list(file_tree());
        ASSERT_EQ(static_cast<int>(selected.size()), file_tree().selected_count());
        for (TreeNode* node : selected) {
            ASSERT_TRUE(present.contains(node) && file_tree().is_selected(node));
        }
        for (TreeNode* remembered :
             {GlobalObject.node(), TraceObjects.at_end() ? nullptr : TraceObjects.next().node(),
              file_tree().current()}) {
            ASSERT_TRUE(remembered == nullptr || present.contains(remembered));
        }
        for (TreeNode* node : nodes) {
            TreeNode* const parent = file_tree().parent(node);
            ASSERT_EQ(parent == nullptr, file_tag(node).is_root == 1);
            ASSERT_TRUE(parent == nullptr ||
                        file_tag(node).path() == path_in(file_tag(parent).path(), file_tag(node).label));
        }
    }

  private:
    std::mt19937 random_{20260101};
};

TEST_F(RandomSteps, RememberNoNodeThatIsGone) {
    const std::function<void()> steps[] = {
        [this] { select_some(); },
        [this] { select_some(); },
        [] { (void)FileTreeDoubleClick(); },
        [] { (void)FileTreeDoubleClick(); },
        [this] { change_outside(); },
        [] { (void)FileTreeGoBack(); },
        [] { (void)FileTreeGoBack(); },
        [] { (void)FileTreeGoForward(); },
        [] { (void)FileTreeTraceBack(); },
        [] { (void)FileTreeSelectAll(); },
        [] { (void)clear_branch(); },
        [] { DisplaySelectedModule(); },
        [this] {
            if (file_tree().roots().size() < 3) {
                (void)SetRootDisplay(path("top"));
            }
        },
        [this] {
            if (below(8) == 0) {
                (void)Clear_tree();
            }
        },
    };
    for (int step = 0; step < 2000; ++step) {
        SCOPED_TRACE(step);
        steps[below(std::size(steps))]();
        if (below(2) == 0) {  // else the next step comes while the work is under way
            settle();
        }
        ASSERT_NO_FATAL_FAILURE(check());
    }
    settle();
    (void)FileTreeClearAll();
    EXPECT_EQ(all_nodes().size() + file_tree().size(), 0U);
}

}  // namespace
