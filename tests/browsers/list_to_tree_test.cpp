// SPDX-License-Identifier: MIT
#include "browsers/tree/file_tree.h"
#include "settings/notify.h"
#include "tests/browsers/file_list_windows.h"
#include "ui/add_rename_save.h"
#include "ui/file_tree_browser.h"

#include <tuple>

namespace {

namespace fs = std::filesystem;

class ListToTree : public FileListWindows {
  protected:
    /// Waits until the tree has so many nodes; their labels below the first root.
    static Rows leaves(int nodes) {
        EXPECT_TRUE(wait([=] { return file_tree().size() == nodes; })) << file_tree().size();
        Rows labels;
        for (const TreeNode* node : file_tree().children(file_tree().roots().front())) {
            labels.push_back(file_tag(node).label);
        }
        return labels;
    }
    /// Selects the root and what is named below it.
    static void select(bool root, const Rows& names) {
        file_tree().clear_selection();
        TreeNode* const top = file_tree().roots().front();
        if (root) {
            file_tree().select(top);
        }
        for (TreeNode* node : file_tree().children(top)) {
            if (std::ranges::find(names, file_tag(node).label) != names.end()) {
                file_tree().select(node);
            }
        }
    }
};

TEST_F(ListToTree, MakesRootsAndCopiesIntoTheSelectedDirectory) {
    EXPECT_EQ(press("set root"), "Directory not defined");
    browser().directory.set_text(directory());
    for (const auto& [file, footer] :
         {std::pair{"alpha", "Not a directory"}, {"none", "Illegal directory"}, {"sub//", ""}, {"", ""}}) {
        name(file);
        EXPECT_EQ(press("set root"), footer) << file;
        EXPECT_TRUE(
            wait([] { return file_tree_browser().widget()->findChild<QObject*>("long work") == nullptr; }));
    }
    ASSERT_EQ(file_tree().roots().size(), 2U);
    EXPECT_EQ(file_tag(file_tree().roots()[1]).path(), directory());
    file_tree().destroy(file_tree().roots()[0]);
    EXPECT_EQ(leaves(5), (Rows{"Beta.c", "alpha", "notes.txt", "sub"}));

    const std::string other = home.write("other/alpha", "new").parent_path();
    fs::create_directory(home / "other/folder");
    browser().directory.set_text(other);
    const std::tuple<std::string, bool, Rows, std::string, int> cases[] = {
        {"", true, {}, "Source file name not specified", 5},
        {"none", true, {}, "Illegal source file", 5},
        {"folder", true, {}, "Source file can't be a directory", 5},
        {"alpha", false, {}, "No destination directory selected", 5},
        {"alpha", true, {"sub"}, "Specify one destination directory", 5},
        {"alpha", false, {"Beta.c"}, "Specify one destination directory", 5},
        {"alpha", true, {"Beta.c"}, "Source file selected in file list manager", 5},
        {"alpha", true, {}, "", 6},
        {"alpha", true, {}, "File alrerady exists", 6},
    };
    for (const auto& [file, root, below, footer, nodes] : cases) {
        select(root, below);
        name(file);
        EXPECT_EQ(press("copy to tree"), footer) << file;
        leaves(nodes);
    }
    EXPECT_EQ(leaves(6).back(), "alpha_NEW");
    EXPECT_EQ(read_file(home / "list/alpha_NEW"), "new");
    EXPECT_EQ(read_file(home / "list/alpha"), "list/alpha\n");
    browser().directory.set_text("");
    EXPECT_EQ(press("copy to tree"), "Source directory name not specified");
}

TEST_F(ListToTree, ASetupIsSavedIntoTheSelectedDirectory) {
    browser().directory.set_text(directory());
    ASSERT_EQ(press("set root"), "");
    leaves(5);
    const auto save = [](const std::string& name) {
        add_rename_save().new_name.set_text(name);
        control<QAbstractButton>(add_rename_save(), "Save").click();
        EXPECT_TRUE(
            wait([] { return add_rename_save().widget()->findChild<QObject*>("long work") == nullptr; }));
        EXPECT_EQ(file_tree_browser().left_footer(), add_rename_save().left_footer());
        return add_rename_save().left_footer();
    };
    const std::tuple<std::string, bool, Rows, std::string, int> cases[] = {
        {"", true, {}, "File name not defined", 5},
        {"new", false, {}, "No directory selected", 5},
        {"new", true, {"alpha"}, "Select one parent directory", 5},
        {"new", true, {"sub"}, "Select one parent directory", 5},
        {"sub", true, {}, "Could not save setup file", 5},
        {"new", true, {}, "", 6},
        {"new", true, {}, "", 6},
    };
    for (const auto& [name, root, below, footer, nodes] : cases) {
        select(root, below);
        EXPECT_EQ(save(name), footer) << name;
        leaves(nodes);
    }
    browser().file_name.set_text("new");
    EXPECT_EQ(FileListLoadSetup(), "Setup loaded from " + (home / "list/new").string());
    fs::remove_all(home / "list");
    EXPECT_EQ(save("new"), "Illegal directory");
}

}  // namespace
