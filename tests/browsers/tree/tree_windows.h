// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/notify.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/open_node.h"
#include "tests/support/recorded_windows.h"
#include "ui/file_tree_browser.h"

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

/// The windows with a small tree of directories in the home directory, and the browser's tree as texts.
class TreeWindows : public RecordedWindows {
  protected:
    using Labels = std::vector<std::string>;

    void SetUp() override {
        RecordedWindows::SetUp();
        GlobalObject = {};
        TraceObjects = {};
        for (const char* file : {"top/a", "top/b c", "top/sub/x.h", "top/sub/deep/y.h", "top/zip/.dot"}) {
            home.write(file, "");
        }
    }

    [[nodiscard]] std::string path(std::string_view name) const { return home / name; }
    /// What a step leaves in a window's left footer when its work is over: what it answers, or what comes
    /// later.
    template <typename Step>
    static std::string footer_after(Step step, Frame& window = file_tree_browser()) {
        window.set_left_footer("");
        const Message answer = step();
        if (!answer.empty()) {
            return answer;
        }
        settle();
        return window.left_footer();
    }
    /// Makes a directory a root and gives its node.
    static TreeNode* root(const std::string& directory) {
        const std::string footer = footer_after([&] { return SetRootDisplay(directory); });
        EXPECT_TRUE(footer.starts_with("Total number of files")) << footer;
        return file_tree().roots().back();
    }
    static Labels labels(const std::vector<TreeNode*>& nodes) {
        Labels all;
        for (const TreeNode* node : nodes) {
            all.push_back(file_tag(node).label);
        }
        return all;
    }
    static Labels children(const TreeNode* node) { return labels(file_tree().children(node)); }
    static Labels selected() { return labels(rectobj_get_selected_list(file_tree())); }
    static TreeNode* child(const TreeNode* node, const std::string& label) {
        for (TreeNode* below : file_tree().children(node)) {
            if (file_tag(below).label == label) {
                return below;
            }
        }
        ADD_FAILURE() << "no " << label;
        std::abort();
    }
    static void select(const std::vector<TreeNode*>& nodes) {
        file_tree().clear_selection();
        for (TreeNode* node : nodes) {
            file_tree().select(node);
        }
    }
    /// Opens a directory's node, as a double click does.
    static std::string open(TreeNode* node) {
        select({node});
        return footer_after(FileTreeDoubleClick);
    }

    /// Has the work that was started end.
    static void settle() {
        EXPECT_TRUE(wait([] {
            return std::ranges::none_of(all_windows(), [](const Frame* window) {
                return window->widget()->cursor().shape() == Qt::WaitCursor;
            });
        }));
    }
};
