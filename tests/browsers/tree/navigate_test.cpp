// SPDX-License-Identifier: MIT
#include "tests/browsers/tree/tree_windows.h"
#include "ui/file_status.h"

namespace {

class NavigateTest : public TreeWindows {
  protected:
    /// A click on a node.
    static void click(TreeNode* node) {
        select({node});
        EXPECT_EQ(FileTreeClick(), "");
    }
};

TEST_F(NavigateTest, AClickShowsTheFileAndBeginsTheTrace) {
    TreeNode* const top = root(path("top"));
    click(child(top, "b c"));
    EXPECT_EQ(file_tree_browser().current_file.text(), path("top/b c"));
    EXPECT_EQ(file_status().file_name.text(), path("top/b c"));
    EXPECT_TRUE(wait([] { return file_status().owner.value() != 0; }));
    EXPECT_EQ(FileTreeGoForward(), "End of trace");
    EXPECT_EQ(FileTreeGoBack(), "");
    EXPECT_EQ(selected(), Labels{"top"});
    EXPECT_EQ(file_tree_browser().current_file.text(), path("top"));
    EXPECT_EQ(FileTreeGoBack(), "Already at the root");
    EXPECT_EQ(FileTreeGoForward(), "");
    EXPECT_EQ(selected(), Labels{"b c"});
    EXPECT_EQ(FileTreeGoForward(), "End of trace");
}

TEST_F(NavigateTest, WhatNeedsASelectionSaysSo) {
    TreeNode* const top = root(path("top"));
    const struct {
        Message (*procedure)();
        std::string with_none;
        std::string with_several;
    } cases[] = {
        {FileTreeGoBack, "No instance selected", "Selected one instance to trace back"},
        {FileTreeGoForward, "No instance selected", "Selected one instance to trace forward"},
        {FileTreeTraceBack, "No instance selected", "Selected one instance to trace back"},
        {FileTreeFindSelection, "No selection made", ""},
        {FileTreeFindRoot, "No selection made", "Already at the root"},
        {FileTreeSelectAll, "No instance selected", ""},
    };
    for (const auto& row : cases) {
        file_tree().clear_selection();
        EXPECT_EQ(row.procedure(), row.with_none);
        select({child(top, "sub"), top});
        EXPECT_EQ(row.procedure(), row.with_several);
    }
    click(child(top, "sub"));
    EXPECT_EQ(FileTreeGoBack(), "");
    EXPECT_EQ(open(top), "Total number of files : 4. Files displayed : 4");  // with other nodes
    EXPECT_EQ(FileTreeGoForward(), "The instance is no longer displayed");
    EXPECT_EQ(selected(), Labels{"top"});
}

TEST_F(NavigateTest, SelectsAncestorsAndChildren) {
    TreeNode* const top = root(path("top"));
    open(child(top, "sub"));
    TreeNode* const deep = child(child(top, "sub"), "deep");
    select({deep});
    EXPECT_EQ(FileTreeTraceBack(), "");
    EXPECT_EQ(selected(), (Labels{"deep", "sub", "top"}));
    EXPECT_EQ(file_tree_browser().right_footer(), "3 selected");
    EXPECT_EQ(FileTreeFindRoot(), "Already at the root");
    select({top, deep});
    EXPECT_EQ(FileTreeFindRoot(), "");
    EXPECT_EQ(GlobalObject.node(), top);
    EXPECT_EQ(FileTreeFindSelection(), "");
    EXPECT_EQ(GlobalObject.node(), deep);
    select({top});
    EXPECT_EQ(FileTreeSelectAll(), "");
    EXPECT_EQ(selected(), (Labels{"top", "a", "b c", "sub", "zip"}));
    EXPECT_EQ(FileTreeTraceBack(), "Selected one instance to trace back");
}

TEST_F(NavigateTest, TracesAHundredSteps) {
    constexpr int levels = 103;
    std::string directory = path("d");
    std::filesystem::create_directory(directory);
    TreeNode* node = root(directory);
    for (int level = 1; level < levels; ++level) {
        directory += "/d";
        std::filesystem::create_directory(directory);
        node = AddOneLeaf("d", directory, file_tree(), node, 0, 0, 1);
    }
    click(node);
    for (int step = 1; step <= 100; ++step) {
        EXPECT_EQ(FileTreeGoBack(), "") << step;
    }
    EXPECT_EQ(FileTreeGoBack(), "Can't store more traces");
    EXPECT_EQ(file_tree_browser().current_file.text(), path("d/d"));
}

TEST_F(NavigateTest, ScrollsByButtons) {
    file_tree_browser().open();
    TreeNode* node = root(path("top"));
    for (int depth = 0; depth < 40; ++depth) {
        node = AddOneLeaf("a wide name", path("top"), file_tree(), node, 0, 0, 3);
    }
    for (int line = 0; line < 100; ++line) {
        AddOneLeaf("line", path("top/a"), file_tree(), file_tree().roots().front(), 0, 0, 3);
    }
    const auto start = [] {
        return std::pair(file_tree().horizontal().view_start, file_tree().vertical().view_start);
    };
    const int right = file_tree().horizontal().object_length - file_tree().horizontal().view_length;
    const int down = file_tree().vertical().object_length - file_tree().vertical().view_length;
    ASSERT_GT(right, 80);
    ASSERT_GT(down, 40);
    const struct {
        Message (*procedure)();
        std::pair<int, int> then;
    } cases[] = {
        {FileTreeScrollUpperLeft, {0, 0}},
        {FileTreeScrollRight, {40, 0}},
        {FileTreeScrollDown, {40, 20}},
        {FileTreeScrollLeft, {0, 20}},
        {FileTreeScrollUp, {0, 0}},
        {FileTreeScrollUp, {0, 0}},
        {FileTreeScrollLowerRight, {right, down}},
        {FileTreeScrollDown, {right, down}},
        {FileTreeScrollUpperRight, {right, 0}},
        {FileTreeScrollLowerLeft, {0, down}},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.procedure(), "");
        EXPECT_EQ(start(), row.then);
    }
    GlobalObject = reference_to(node);
    DisplaySelectedModule();
    const TreeCanvas::Area area = file_tree().area(node);
    EXPECT_LE(start().first * 10, area.x);
    EXPECT_GE((start().first + file_tree().horizontal().view_length) * 10, area.x);
}

}  // namespace
