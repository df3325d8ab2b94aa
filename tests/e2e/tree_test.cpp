// SPDX-License-Identifier: MIT
// The "File Tree Browser" with real bash: a project is drawn, opened, looked at, and gone to.
#include "tests/e2e/orvik_test.h"

namespace {

class Tree : public OrvikTest {
  protected:
    Tree() {
        for (const char* file : {"project/src/main.c", "project/src/lib/a.c", "project/Makefile",
                                 "project/odd\tname", "project/.hidden"}) {
            home_.write(file, "");
        }
    }

    /// The window with the project as its root.
    void show_project() {
        start_with_shell("/bin/bash");
        type("cd project\n");
        expect_cwd(home_ / "project");
        browser_ = open_window("File Tree Browser");
        choose("Select", "Current");
        expect_awaited([this] { return field(browser_, "Root Directory:"); }, (home_ / "project").string());
        EXPECT_TRUE(press("Set Root (root directory)"));
        expect_left("Total number of files : 4. Files displayed : 3");
        canvas_ = browser_.find({"tree", "File Tree Browser tree"});
    }
    void choose(std::string_view menu, std::string_view item) {
        display().click(browser_.find({"push button", menu}).place());
        choose_in_open_menu(item);
    }
    void choose_in_open_menu(std::string_view item) {
        const Accessible found = browser_.find({"menu item", item});
        ASSERT_TRUE(wait_until([&] { return found.showing(); })) << browser_.tree();
        display().click(found.place());
    }
    [[nodiscard]] bool press(std::string_view button) const {
        return browser_.find({"push button", button}).press();
    }
    [[nodiscard]] Accessible node(std::string_view label) const {
        return canvas_.find({"table cell", label});
    }
    void double_click(std::string_view label) {
        display().click(node(label).place());
        display().click(node(label).place());
    }
    void expect_left(const std::string& expected) const {
        expect_awaited([this] { return footer(browser_, "left footer"); }, expected);
    }

    Accessible browser_;
    Accessible canvas_;
};

TEST_F(Tree, IsWalkedAndTheShellFollows) {
    show_project();
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
    double_click("src");  // reads it anew
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
