// SPDX-License-Identifier: MIT
// A user at work in the "File List Browser", with a real shell.
#include "tests/e2e/orvik_test.h"

namespace {

namespace fs = std::filesystem;

class FileListStory : public OrvikTest {
  protected:
    FileListStory() {
        home_.write("project/notes", "first\nsecond\n");
        home_.write("project/sub/inner", "");
        home_.write_script("project/odd; name", "#!/bin/sh\necho $((6*7))-ran\n");
    }
    void open_browser() {
        start_with_shell("/bin/bash");
        expect_cwd(home_.path());
        browser_ = open_window("File List Browser");
        ASSERT_TRUE(wait_until([this] { return browser_.active() && knows_its_place(); }));
    }
    /// Just after a window was shown its program may not know yet where the window manager has put it.
    bool knows_its_place() const {
        const auto window = display().window(program_->process().pid(), "File List Browser");
        const Rectangle known = browser_.place();
        return window && display().place(*window).x == known.x && display().place(*window).y == known.y;
    }
    void click(const Accessible& control) {
        ASSERT_TRUE(wait_until([&] { return control.place().width > 0; })) << browser_.tree();
        display().click(control.place());
    }
    void click_row(std::string_view name) { click(browser_.find({"list item", name})); }
    void choose(std::string_view menu, std::string_view item) {
        const Accessible button = browser_.find({"push button", menu});
        click(button);
        const Accessible found = button.find({"menu item", item});
        ASSERT_TRUE(wait_until([&] { return found.showing(); })) << browser_.tree();
        click(found);
    }
    void press(std::string_view button) { EXPECT_TRUE(browser_.find({"push button", button}).press()); }
    void answer(std::string_view button) {
        Accessible found;
        ASSERT_TRUE(wait_until([&] {
            found = program_->application().find({"push button", button});
            return found.showing();
        })) << button;
        EXPECT_TRUE(found.press());
    }
    void expect_field(std::string_view label, const std::string& expected) const {
        expect_awaited([&] { return field(browser_, label); }, expected);
    }

    Accessible browser_;
};

TEST_F(FileListStory, AProjectIsLookedThroughAndTidiedUp) {
    open_browser();
    const fs::path project = home_ / "project";
    click_row("project/");
    expect_field("File Name:", "project/");
    display().press_key("Return");
    expect_field("Directory:", project);
    display().press_key("o");
    expect_field("File Name:", "odd; name");
    press("Execute");
    expect_in_terminal("\n42-ran");
    ASSERT_TRUE(browser_.find({"text", "Text:"}).set_text("NOTES"));
    press("Find");
    expect_field("File Name:", "notes");
    press("head");
    const Accessible board = program_->window("Message Board");
    EXPECT_NE(board.find({"text", "Message Board text"})
                  .text()
                  .find((project / "notes").string() + " \n\nfirst\nsecond\n"),
              std::string::npos);
    display().press_key("Escape");
    choose("File", "Select");
    expect_field("Selected:", project / "notes");
    ASSERT_TRUE(browser_.find({"text", "File Name:"}).set_text("copy"));
    choose("File", "Copy");
    EXPECT_TRUE(wait_until([&] { return read_file(project / "copy") == "first\nsecond\n"; }));
    click_row("copy");
    expect_field("File Name:", "copy");
    display().press_key("Delete");
    answer("Yes");
    EXPECT_TRUE(wait_until([&] { return !fs::exists(project / "copy"); }));
    click_row("sub/");
    expect_field("File Name:", "sub/");
    press("cd");
    expect_cwd(project / "sub");
    press("current");
    expect_field("Directory:", project / "sub");
    click_row("../ (Go up 1 directory level)");
    display().press_key("BackSpace");
    expect_field("Directory:", project);
    expect_awaited([this] { return footer(browser_, "right footer"); },
                   std::string("Number of files displayed: 3"));
}

}  // namespace
