// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "tests/browsers/tree/tree_windows.h"
#include "tests/support/notice_answerer.h"
#include "toolkit/long_work.h"

#include <QAbstractButton>

#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

/// The windows with a tree of real files, all of which are shown, and what changes in both.
class OperationWindows : public TreeWindows, protected NoticeAnswerer {
  protected:
    using Paths = std::set<std::string>;

    void SetUp() override {
        TreeWindows::SetUp();
        lay_out();
    }

    /// Makes the files anew and shows them.
    void lay_out() {
        namespace fs = std::filesystem;
        FileTreeClearAll();
        fs::remove_all(path("top"));
        for (const char* file : {"top/a", "top/b c", "top/dangle", "top/sub/a", "top/sub/x.h"}) {
            home.write(file, file);
        }
        fs::create_symlink("../../outside", path("top/sub/dangle"));
        fs::create_directory(path("top/zip"));
        top = root(path("top"));
        open(child(top, "sub"));
        open(child(top, "zip"));
        // Files that nothing can be done with, whoever tries.
        for (const char* file : {"/proc/self/mem", "/proc/self"}) {
            AddOneLeaf(file, file, file_tree(), top, 0, 0, 1);
        }
    }

    /// The node of a path below the root; of the root itself when that is empty.
    [[nodiscard]] TreeNode* node_at(const std::string& below) const {
        TreeNode* node = top;
        if (below.starts_with('/')) {
            return child(node, below);
        }
        std::istringstream names(below);
        for (std::string name; std::getline(names, name, '/');) {
            node = child(node, name);
        }
        return node;
    }
    void select_at(const Labels& below) const {
        std::vector<TreeNode*> nodes;
        for (const std::string& each : below) {
            nodes.push_back(node_at(each));
        }
        select(nodes);
    }
    /// What a step, as a control's procedure, leaves in its window's left footer when all is over.
    template <typename Step>
    static std::string after(Step step, Frame& window = file_tree_browser()) {
        window.set_left_footer(step());
        EXPECT_TRUE(wait([&] { return window.widget()->findChild<QObject*>("long work") == nullptr; }));
        return window.left_footer();
    }
    /// The same for a pop-up's button; both windows tell.
    static std::string press(Frame& window, const char* button) {
        file_tree_browser().set_left_footer("old");
        const std::string footer = after(
            [&] {
                control<QAbstractButton>(window, button).click();
                return window.left_footer();
            },
            window);
        EXPECT_EQ(file_tree_browser().left_footer(), footer) << button;
        return footer;
    }

    /// All that is below the root: files with what is in them, links with their targets.
    [[nodiscard]] Paths on_disk() const {
        namespace fs = std::filesystem;
        Paths all;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path("top"))) {
            std::string text = entry.path().lexically_relative(path("top"));
            if (entry.is_symlink()) {
                text += "->" + fs::read_symlink(entry).string();
            } else if (!entry.is_directory()) {
                text += "=" + read_file(entry);
            }
            all.insert(text);
        }
        return all;
    }
    /// The paths of all nodes below one.
    static Paths in_tree(const TreeNode* node) {
        Paths all;
        for (const TreeNode* below : file_tree().children(node)) {
            all.insert(file_tag(below).path());
            all.merge(in_tree(below));
        }
        return all;
    }
    /// What has come, with a "+" in front, and what has gone, with a "-".
    static Paths changes(const Paths& before, const Paths& now) {
        Paths all;
        for (const std::string& each : now) {
            if (!before.contains(each)) {
                all.insert("+" + each);
            }
        }
        for (const std::string& each : before) {
            if (!now.contains(each)) {
                all.insert("-" + each);
            }
        }
        return all;
    }
    /// The same changes as they are to be seen in the tree.
    [[nodiscard]] Paths as_nodes(const Paths& on_disk) const {
        Paths all;
        for (const std::string& change : on_disk) {
            const std::string name = change.substr(1, change.find_first_of("=>") - 1);
            all.insert(change[0] + path("top/") + name.substr(0, name.find_last_not_of('-') + 1));
        }
        return all;
    }

    TreeNode* top = nullptr;
};
