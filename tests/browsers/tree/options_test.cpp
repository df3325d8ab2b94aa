// SPDX-License-Identifier: MIT
#include "tests/browsers/tree/tree_windows.h"
#include "ui/bookmark_definition.h"
#include "ui/default_settings.h"
#include "ui/file_status.h"
#include "ui/lookup_directories_main.h"
#include "ui/lookup_directories_tree.h"
#include "ui/select_files_window.h"

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class OptionsTest : public TreeWindows {
  protected:
    void SetUp() override {
        TreeWindows::SetUp();
        top_ = root(path("top"));
    }
    TreeNode* top_ = nullptr;
};

TEST_F(OptionsTest, DirectoriesAreSetAsTypedLines) {
    const std::string top = path("top");
    home.write("top/o'; $x/y", "");
    open(top_);
    const struct {
        Labels selection;
        std::string footer;
        std::string typed;
    } cases[] = {
        {{}, "No directory selected", ""},     {{"a"}, "Not a directory", ""},
        {{"sub", "a"}, "Not a directory", ""}, {{"sub", "zip"}, "Select one directory", ""},
        {{"sub"}, "", "cd " + top + "/sub\n"}, {{"o'; $x"}, "", "cd '" + top + "/o'\\''; $x'\n"},
    };
    for (const auto& row : cases) {
        std::vector<TreeNode*> nodes;
        for (const std::string& label : row.selection) {
            nodes.push_back(child(top_, label));
        }
        select(nodes);
        for (Message (*procedure)() : {set_new_root, set_parent_root}) {
            EXPECT_TRUE(row.footer.empty() || footer_after(procedure) == row.footer) << row.footer;
        }
        EXPECT_EQ(footer_after(set_directory), row.footer);
        EXPECT_EQ(typed(), row.typed);
    }
    EXPECT_EQ(default_settings().last_command.text(), "cd '" + top + "/o'\\''; $x'");
    select({child(top_, "sub")});
    fs::remove_all(path("top/sub"));
    EXPECT_EQ(footer_after(set_directory), "Illegal directory");
}

TEST_F(OptionsTest, DirectoriesBecomeRoots) {
    select({child(top_, "zip")});
    (void)set_new_root();
    EXPECT_TRUE(wait([] { return labels(file_tree().roots()) == Labels{"top", "zip"}; }));
    select({top_});
    (void)set_parent_root();
    EXPECT_TRUE(wait([] { return file_tree().roots().size() == 3; }));
    EXPECT_EQ(file_tag(file_tree().roots().back()).path(), home.path());
    EXPECT_EQ(SetBookmarkRoot(""), "");
    (void)SetBookmarkRoot(path("top/sub"));
    EXPECT_TRUE(wait([] { return file_tree().roots().size() == 4; }));
}

TEST_F(OptionsTest, ABookmarkIsDefinedForOneNode) {
    home.write("top/page.html", "");
    open(top_);
    file_tree().clear_selection();
    EXPECT_EQ(add_bookmark(), "No file selected");
    select({top_, child(top_, "a")});
    EXPECT_EQ(footer_after(add_bookmark), "Select one file to bookmark");
    for (const auto& [label, type] : {std::pair("sub", 0), std::pair("a", 1), std::pair("page.html", 4)}) {
        select({child(top_, label)});
        EXPECT_EQ(footer_after(add_bookmark), "") << label;
        EXPECT_EQ(bookmark_definition().bookmarked_file.text(), path("top/") + label);
        EXPECT_EQ(bookmark_definition().file_type.value(), type);
    }
}

TEST_F(OptionsTest, StatusIsShownAndPermissionsAreSetForTheSelection) {
    file_tree().clear_selection();
    EXPECT_EQ(FilePermissionsSetAll(), "No files selected");
    EXPECT_EQ(display_status(), "");
    EXPECT_EQ(file_status().file_name.text(), "");
    EXPECT_EQ(file_status().right_footer(), "Click a file name to display status");
    select({top_, child(top_, "a"), child(top_, "b c")});
    EXPECT_EQ(display_status(), "");
    EXPECT_EQ(file_status().file_name.text(), path("top/b c"));
    EXPECT_TRUE(wait([] { return file_status().owner.value() != 0; }));
    const auto set_all = [] {
        file_status().owner.set_value(7);
        file_status().group.set_value(5);
        file_status().world.set_value(0);
        return footer_after(FilePermissionsSetAll, file_status());
    };
    EXPECT_EQ(set_all(), "Permissions changed");
    struct stat status {};
    ASSERT_EQ(stat(path("top/b c").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0750U);
    fs::remove(path("top/a"));
    EXPECT_EQ(set_all(), "Illegal file");
    file_status().file_system.set_value(FileStatus::clearcase_vob);
    EXPECT_EQ(set_all(), "Illegal file");
    EXPECT_EQ(typed(), "cleartool protect -chmod 750 " + path("top") + "\n");
    AddOneLeaf("stat", "/proc/self/stat", file_tree(), top_, 0, 0, 1);
    file_status().file_system.set_value(0);
    select({child(top_, "stat")});
    EXPECT_EQ(set_all(), "Can't change permissions on file : stat");
    EXPECT_EQ(file_status().group.value(), 1U);
}

TEST_F(OptionsTest, FilesAreSelectedByName) {
    SelectFiles& window = select_files_window();
    open(child(top_, "sub"));
    const auto run = [&] { return footer_after(SelectFilesSelectButton, window); };
    EXPECT_EQ(run(), "No search string specified");
    window.search_string.set_text("E");
    file_tree().clear_selection();
    EXPECT_EQ(run(), "No file selected");
    select({child(top_, "a"), top_});
    EXPECT_EQ(run(), "Select one directory");
    const struct {
        std::string text;
        int match;
        int case_sensitive;
        int recursive;
        int target;
        std::string footer;
        Labels selected;
    } cases[] = {
        {"B", 0, 0, 0, 0, "Number of selections 2", {"b c", "sub"}},
        {"B", 0, 1, 0, 0, "No match", {}},
        {"b", 1, 1, 0, 0, "Number of selections 1", {"b c"}},
        {"b", 2, 1, 0, 0, "Number of selections 1", {"sub"}},
        {"b", 0, 0, 0, 1, "Number of selections 1", {"b c"}},
        {"p", 0, 0, 1, 2, "Number of selections 2", {"deep", "zip"}},
        {"h", 2, 0, 1, 1, "Number of selections 1", {"x.h"}},
        {"h", 2, 0, 0, 1, "No match", {}},
    };
    for (const auto& row : cases) {
        window.search_string.set_text(row.text);
        window.match.set_value(row.match);
        window.case_sensitive.set_value(row.case_sensitive);
        window.recursive.set_value(row.recursive);
        window.target_files.set_value(row.target);
        select({top_});
        EXPECT_EQ(run(), row.footer);
        EXPECT_EQ(selected(), row.selected) << row.footer;
    }
}

TEST_F(OptionsTest, RootDirectoryAndCurrentFileAreFilledAndUsed) {
    FileTreeBrowser& browser = file_tree_browser();
    set_selection(path("top/sub"));
    const struct {
        std::string cwd;
        Message (*procedure)();
        std::string footer;
        std::string field;
    } cases[] = {
        {"", SetRootCurrentDirectory, "Directory name not specified", "old"},
        {"", FileTreeBrowserSerParent, "Directory name not specified", "old"},
        {"/a/b", SetRootCurrentDirectory, "", "/a/b"},
        {"/a/b", FileTreeBrowserSerParent, "", "/a"},
        {"/a", FileTreeBrowserSerParent, "", "/"},
        {"", Set_directory_selected, "", path("top/sub")},
        {"", Select_home_root, "", home.path()},
    };
    for (const auto& row : cases) {
        browser.root_directory.set_text("old");
        main_window().cwd.set_text(row.cwd);
        EXPECT_EQ(row.procedure(), row.footer);
        EXPECT_EQ(browser.root_directory.text(), row.field);
    }
    const std::tuple<std::string, std::string, std::string> ups[] = {
        {"", "Illegal file name", ""},
        {path("none"), "Illegal directory", path("none")},
        {path("top/sub/"), "", path("top")},
        {"/usr", "", "/"},
        {"/", "", "/"},
    };
    for (const auto& [written, footer, field] : ups) {
        browser.root_directory.set_text(written);
        EXPECT_EQ(footer_after(FileTreeUp), footer) << written;
        EXPECT_EQ(browser.root_directory.text(), field) << written;
    }
    const std::tuple<std::string, std::string, std::string> sets[] = {
        {"", "Directory name not specified", ""},
        {path("none"), "Illegal directory", ""},
        {path("top/a"), "Not a directory", ""},
        {path("top"), "", "cd \"" + path("top") + "\"\n"},
    };
    for (const auto& [written, footer, line] : sets) {
        browser.current_file.set_text(written);
        EXPECT_EQ(footer_after(FileTreeSetDirectory), footer);
        EXPECT_EQ(typed(), line);
    }
}

TEST_F(OptionsTest, DirectoriesAreLookedUp) {
    LookupDirectoriesTree& window = lookup_directories_tree();
    TextField& field = file_tree_browser().root_directory;
    const std::string hint = "Double click in the list to go down";
    const auto after = [&window](auto step) { return footer_after(step, window); };
    field.set_text("");
    EXPECT_EQ(FileTreeLookup(), "");
    EXPECT_EQ(window.left_footer(), "Root directory not specified");
    EXPECT_EQ(LookupTreeUp(), "Root directory not specified");
    field.set_text(path("top"));
    FileTreeLookup();
    EXPECT_TRUE(wait([&] { return window.list.all_rows() == Labels{"sub", "zip"}; }));
    EXPECT_EQ(after([] { return LookupTreeList({.kind = ListEvent::Kind::activate, .row = 0}); }), "");
    EXPECT_EQ(field.text(), path("top/sub"));
    EXPECT_EQ(window.list.all_rows(), Labels{"deep"});
    EXPECT_EQ(after([] { return LookupTreeList({.kind = ListEvent::Kind::activate, .row = 0}); }),
              "No more directories");
    EXPECT_EQ(after(LookupTreeUp), hint);
    EXPECT_EQ(field.text(), path("top/sub"));
    field.set_text("/");
    EXPECT_EQ(after(LookupTreeUp), hint);
    EXPECT_EQ(field.text(), "/");
    EXPECT_EQ(LookupTreeList({.kind = ListEvent::Kind::press, .row = 0}), "");  // but once
}

TEST_F(OptionsTest, TheMainWindowLooksUpListsAndChangesDirectories) {
    LookupDirectoriesMain& window = lookup_directories_main();
    const std::string hint = "Double click in the list to go down";
    const auto after = [&window](auto step) { return footer_after(step, window); };
    window.dir.set_text("");
    for (Message (*procedure)() : {LookupMainUp, LookupMainLs, LookupMainCd}) {
        EXPECT_EQ(procedure(), "Lookup directory not specified");
    }
    EXPECT_EQ(LookupMainCurrent(), "Current directory not set");
    EXPECT_EQ(after(LookupMainDisplay), hint);
    EXPECT_EQ(window.dir.text(), "/");
    main_window().cwd.set_text(path("top/sub"));
    EXPECT_EQ(after(LookupMainCurrent), hint);
    EXPECT_EQ(after(LookupMainUp), hint);
    EXPECT_EQ(window.dir.text(), path("top"));
    EXPECT_EQ(window.list.all_rows(), (Labels{"sub", "zip"}));
    window.dir.set_text(path("top/b c"));
    EXPECT_EQ(LookupMainLs(), "");
    EXPECT_EQ(LookupMainCd(), "");
    EXPECT_EQ(typed(), "ls -al '" + path("top/b c") + "'\ncd '" + path("top/b c") + "'\n");
}

}  // namespace
