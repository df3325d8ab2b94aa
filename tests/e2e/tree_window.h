// SPDX-License-Identifier: MIT
#pragma once

#include "tests/e2e/orvik_test.h"

/// The "File Tree Browser" of a running program, with a small project in it.
class Tree : public OrvikTest {
  protected:
    Tree() {
        for (const char* file : {"project/src/main.c", "project/src/lib/a.c", "project/Makefile",
                                 "project/odd\tname", "project/.hidden"}) {
            home_.write(file, "");
        }
    }

    /// The window with the project as its root, in a shell that has been given other lines before.
    void show_project(const std::string& lines = {}, const std::string& shell = "/bin/bash") {
        start_with_shell(shell);
        type(lines + "cd project\n");
        expect_cwd(home_ / "project");
        browser_ = open_window("File Tree Browser");
        choose("Select", "Current");
        expect_awaited([this] { return field(browser_, "Root Directory:"); }, (home_ / "project").string());
        EXPECT_TRUE(press("Set Root (root directory)"));
        EXPECT_TRUE(wait_until(
            [this] { return footer(browser_, "left footer").starts_with("Total number of files : "); }));
        canvas_ = browser_.find({"tree", "File Tree Browser tree"});
    }
    void choose(std::string_view menu, std::string_view item) {
        const Accessible button = browser_.find({"push button", menu});
        display().click(button.place());
        click_item(button, item);
    }
    /// In the menu of the canvas, which a click has opened.
    void choose_in_open_menu(std::string_view item) {
        click_item(browser_.find({"popup menu", "Options"}), item);
    }
    void click_item(const Accessible& menu, std::string_view item) {
        const Accessible found = menu.find({"menu item", item});
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
