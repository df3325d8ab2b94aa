// SPDX-License-Identifier: MIT
// The "File Tree Browser" with real bash: a project is drawn, opened, looked at, and gone to.
#include "tests/e2e/tree_window.h"

namespace {

TEST_F(Tree, IsWalkedAndTheShellFollows) {
    show_project();
    expect_left("Total number of files : 4. Files displayed : 3");
    double_click("src");
    expect_left("Total number of files : 2. Files displayed : 2");
    const std::string top = home_ / "project";
    EXPECT_EQ(canvas_.tree(),
              "tree \"File Tree Browser tree\"\n"
              "  table cell \"project\" (" +
                  top +
                  ")\n"
                  "    table cell \"Makefile\" (" +
                  top +
                  "/Makefile)\n"
                  "    table cell \"odd^Iname\" (" +
                  top +
                  "/odd\tname)\n"
                  "    table cell \"src\" (" +
                  top +
                  "/src)\n"
                  "      table cell \"lib\" (" +
                  top +
                  "/src/lib)\n"
                  "      table cell \"main.c\" (" +
                  top + "/src/main.c)\n");
    EXPECT_EQ(field(browser_, "Current File:"), top + "/src");
    EXPECT_TRUE(press("Set Directory"));
    expect_cwd(top + "/src");
    EXPECT_EQ(field(open_window("Default Settings"), "Last Command:"), "cd \"" + top + "/src\"");

    home_.write("project/src/new.c", "");
    (void)open_window("File Tree Browser");  // above the main window again
    double_click("src");                     // reads it anew
    ASSERT_TRUE(wait_until([this] { return static_cast<bool>(node("new.c")); }));
    display().click(node("main.c").place(), 3);
    choose_in_open_menu("File Status");
    const Accessible status = program_->window("File Status");
    expect_awaited([&] { return field(status, "File Name:"); }, top + "/src/main.c");
    EXPECT_TRUE(status.find({"label", "File type         : Regular"})) << status.tree();
    display().press_key("Escape");
    EXPECT_TRUE(press("go back"));
    EXPECT_TRUE(press("go back"));
    expect_awaited([this] { return field(browser_, "Current File:"); }, top);
    EXPECT_TRUE(press("go back"));
    expect_left("Already at the root");
}

TEST_F(Tree, StaysUpWhileTheMainWindowIsAnIcon) {
    show_project();
    const WindowId main_window = x_window();
    const auto browser_window = [this] {
        return display().window(program_->process().pid(), "File Tree Browser");
    };
    ASSERT_TRUE(browser_window());
    EXPECT_TRUE(press("iconify the main window"));
    ASSERT_TRUE(wait_until([&] { return display().iconified(main_window); }));
    EXPECT_TRUE(browser_.showing());
    EXPECT_FALSE(display().iconified(*browser_window()));
    EXPECT_TRUE(press("show the main window"));
    EXPECT_TRUE(wait_until([&] { return !display().iconified(main_window); }));
    EXPECT_FALSE(display().iconified(*browser_window()));
    EXPECT_TRUE(press("full size"));
    EXPECT_TRUE(wait_until([&] { return display().place(*browser_window()).width == 1267; }));
    EXPECT_TRUE(press("normal size"));
    EXPECT_TRUE(wait_until([&] { return display().place(*browser_window()).height == 650; }));
}

}  // namespace
