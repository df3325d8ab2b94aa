// SPDX-License-Identifier: MIT
// Files are copied, run, compared and removed from the tree, with real bash.
#include "tests/e2e/tree_window.h"

namespace {

namespace fs = std::filesystem;

class Operations : public Tree {
  protected:
    Operations() {
        home_.write("project/odd\tname", "same\nold\n");
        home_.write("project/Makefile", "same\nnew\n");
        home_.write_script("project/run; touch harm", "#!/bin/sh\necho $((6 * 7))-ran\n");
    }
    /// Selects a node, and the one that stands so many places below it as well.
    void select_with(std::string_view label, int below) {
        display().click(node(label).place());
        ASSERT_TRUE(wait_until([&] { return node(label).focused(); })) << browser_.tree();
        for (int step = 0; step < below; ++step) {
            display().press_key("Down");
        }
        display().press_key("space", "Control_L");
        expect_awaited([this] { return footer(browser_, "right footer"); }, std::string("2 selected"));
    }
    void choose_for(std::string_view label, std::string_view item) {
        display().click(node(label).place(), 3);
        choose_in_open_menu(item);
    }
};

TEST_F(Operations, ActOnTheSelection) {
    show_project();
    const fs::path top = home_ / "project";
    select_with("Makefile", 3);
    choose_for("Makefile", "Copy");
    ASSERT_TRUE(wait_until([&] { return fs::exists(top / "src/Makefile"); })) << browser_.tree();
    EXPECT_EQ(read_file(top / "src/Makefile"), "same\nnew\n");
    expect_left("");

    choose_for("run; touch harm", "Run Linux Program");
    expect_in_terminal("42-ran");
    EXPECT_FALSE(fs::exists(top / "harm"));

    choose_for("odd^Iname", "Header");
    const Accessible board = program_->window("Message Board");
    ASSERT_TRUE(wait_until([&] {
        return field(board, "Message Board text").find("same\nold\n") != std::string::npos;
    })) << board.tree();
    display().press_key("Escape");

    select_with("Makefile", 1);
    choose("More", "Compare (diff)");
    expect_in_terminal("\n! old\n");

    choose_for("odd^Iname", "Remove");
    const auto yes = [this] { return program_->application().find({"push button", "Yes"}); };
    ASSERT_TRUE(wait_until([&] { return yes().showing(); }));
    EXPECT_NE(program_->application().tree().find("Remove file(s) ?"), std::string::npos);
    EXPECT_TRUE(yes().press());
    ASSERT_TRUE(wait_until([&] { return !fs::exists(top / "odd\tname") && !node("odd^Iname"); }));
}

}  // namespace
