// SPDX-License-Identifier: MIT
#include "tests/browsers/tree/tree_windows.h"
#include "ui/file_list_browser.h"
#include "ui/text_editor_setup.h"

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class TreeTest : public TreeWindows {};

TEST_F(TreeTest, RootsAreShownOrRefused) {
    startup_dir = path("top/sub");
    setenv("HOME", home.path().c_str(), 1);
    const struct {
        std::string written;
        std::string footer;
        std::string field;
        Labels roots;
    } cases[] = {
        {"", "Root directory name not specified", "", {}},
        {path("none"), "Illegal directory", "", {}},
        {path("top/a"), "Not a directory", "", {}},
        {path("top/zip/"), "Total number of files : 1. Files displayed : 0", path("top/zip"), {"zip"}},
        {"~/top", "Total number of files : 4. Files displayed : 4", path("top"), {"zip", "top"}},
        {"..", "Total number of files : 4. Files displayed : 4", path("top"), {"zip", "top", "top"}},
    };
    for (const auto& row : cases) {
        file_tree_browser().root_directory.set_text("");
        EXPECT_EQ(footer_after([&] { return SetRootDisplay(row.written); }), row.footer) << row.written;
        EXPECT_EQ(file_tree_browser().root_directory.text(), row.field) << row.written;
        EXPECT_EQ(labels(file_tree().roots()), row.roots) << row.written;
    }
    EXPECT_EQ(children(file_tree().roots().back()), (Labels{"a", "b c", "sub", "zip"}));
    EXPECT_EQ(file_tree_browser().current_file.text(), path("top"));
    EXPECT_EQ(GlobalObject.node(), file_tree().roots().back());
    EXPECT_EQ(file_tag(root("/")).label, "/");
    EXPECT_EQ(file_tree_browser().root_directory.text(), "/");
}

TEST_F(TreeTest, ADoubleClickOpensAndReadsAnew) {
    TreeNode* const top = root(path("top"));
    TreeNode* const sub = child(top, "sub");
    EXPECT_FALSE(file_tree().is_opened(sub));
    EXPECT_EQ(open(sub), "Total number of files : 2. Files displayed : 2");
    EXPECT_EQ(children(sub), (Labels{"deep", "x.h"}));
    EXPECT_EQ(selected(), Labels{"sub"});
    home.write("top/sub/new", "");
    fs::remove(path("top/sub/x.h"));
    EXPECT_EQ(open(child(sub, "x.h")), "Illegal file");
    EXPECT_EQ(children(sub), (Labels{"deep", "x.h"}));
    open(sub);
    EXPECT_EQ(children(sub), (Labels{"deep", "new"}));
    fs::remove_all(path("top/sub"));
    home.write("top/sub", "");  // a file now
    text_editor_setup().text_editor.set_value(TextEditorSetup::user_defined);
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(open(sub), "User editor not specified");
    EXPECT_EQ(children(sub), (Labels{"deep", "new"}));
    select({top, sub});
    EXPECT_EQ(FileTreeDoubleClick(), "Clear all other selection");
}

TEST_F(TreeTest, WhatIsNoDirectoryAndALoopOfLinksDoNoHarm) {
    ASSERT_EQ(mkfifo(path("top/fifo").c_str(), 0600), 0);
    fs::create_directory_symlink(".", path("top/loop"));
    fs::create_symlink("round", path("top/round"));
    TreeNode* const top = root(path("top"));
    EXPECT_EQ(children(top), (Labels{"a", "b c", "fifo", "loop", "sub", "zip"}));
    EXPECT_EQ(open(child(top, "fifo")), "Not a directory");
    EXPECT_EQ(file_tag(child(top, "fifo")).tool_tip().back(), "Cannot be read: Not a directory");
    TreeNode* loop = child(top, "loop");
    for (int depth = 0; depth < 5; ++depth) {
        open(loop);
        loop = child(loop, "loop");
    }
    EXPECT_EQ(file_tag(loop).path(), path("top/loop/loop/loop/loop/loop/loop"));
}

TEST_F(TreeTest, MoreThanMaxFilesGoIntoTheList) {
    file_tree_browser().max_files.set_value(3);
    file_list_browser().file_name.set_text("old");
    EXPECT_EQ(footer_after([&] { return SetRootDisplay(path("top")); }),
              "Files displayed in File List Manager");
    EXPECT_EQ(children(file_tree().roots().back()), Labels{});
    EXPECT_EQ(file_list_browser().directory.text(), path("top"));
    EXPECT_EQ(file_list_browser().file_name.text(), "");
    EXPECT_EQ(file_list_browser().right_footer(), "Number of files displayed: 4");
    EXPECT_TRUE(file_list_browser().shown());
}

TEST_F(TreeTest, NamesAreGivenForOneNodeOfTheKind) {
    TreeNode* const top = root(path("top"));
    TreeNode* const file = child(top, "a");
    using enum TreeNameKind;
    EXPECT_EQ(GetFileTreeName(any), "");
    select({top});
    EXPECT_EQ(GetFileTreeName(any), path("top"));
    EXPECT_EQ(GetFileTreeName(not_files), path("top"));
    EXPECT_EQ(GetFileTreeName(not_directories), "");
    select({file});
    EXPECT_EQ(GetFileTreeName(not_directories), path("top/a"));
    EXPECT_EQ(GetFileTreeName(not_files), "");
    fs::remove(path("top/a"));
    EXPECT_EQ(GetFileTreeName(any), "");
    select({top, child(top, "sub")});
    EXPECT_EQ(GetFileTreeName(any), "");
}

TEST_F(TreeTest, LeavesAreAddedForWhatIsThere) {
    TreeNode* const top = root(path("top"));
    EXPECT_EQ(AddOneLeaf("gone", path("top/gone"), file_tree(), top, 0, 0, 1), nullptr);
    EXPECT_EQ(file_tree_browser().left_footer(), "Illegal file");
    const std::string added = home.write("top/added", "");
    TreeNode* const leaf = AddOneLeaf("added", added, file_tree(), top, 4, 0, 1);
    EXPECT_EQ(children(top).back(), "added");
    EXPECT_EQ(file_tag(leaf).path(), added);
    EXPECT_EQ(file_tag(leaf).group, 4);
    EXPECT_EQ(file_tag(leaf).own_path(), "");
}

TEST_F(TreeTest, NodesAreTakenOff) {
    EXPECT_EQ(Clear_tree(), "No tree selected");
    EXPECT_EQ(FileTreeClearAll(), "No file trees displayed");
    TreeNode* const top = root(path("top"));
    TreeNode* const sub = child(top, "sub");
    open(sub);
    EXPECT_EQ(footer_after([] {
                  file_tree().clear_selection();
                  return clear_branch();
              }),
              "No branch selected");
    select({sub, top});
    EXPECT_EQ(footer_after(clear_branch), "Select one branch to cut");
    select({sub});
    EXPECT_EQ(footer_after(clear_branch), "");
    EXPECT_EQ(children(top), (Labels{"a", "b c", "sub", "zip"}));
    EXPECT_EQ(children(child(top, "sub")), Labels{});
    EXPECT_FALSE(file_tree().is_opened(child(top, "sub")));
    select({top});
    EXPECT_EQ(footer_after(clear_branch), "");
    EXPECT_EQ(labels(file_tree().roots()), Labels{"top"});
    EXPECT_EQ(file_tag(file_tree().roots().front()).is_root, 1);
    open(file_tree().roots().front());
    select({child(file_tree().roots().front(), "a"), file_tree().roots().front()});
    EXPECT_EQ(Clear_tree(), "");
    EXPECT_EQ(file_tree().size(), 0);
    root(path("top"));
    root(path("top"));
    EXPECT_EQ(FileTreeClearAll(), "");
    EXPECT_EQ(file_tree().size(), 0);
    EXPECT_EQ(file_tree_browser().current_file.text(), "");
}

}  // namespace
