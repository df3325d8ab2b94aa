// SPDX-License-Identifier: MIT
// Version control from the tree: real Subversion, and a stand-in for the ClearCase tool that keeps a record.
#include "tests/e2e/tree_window.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <span>
#include <sstream>
#include <vector>

namespace {

namespace fs = std::filesystem;

class VersionControl : public Tree {
  protected:
    void select_node(std::string_view label) {
        ASSERT_TRUE(wait_until([&] { return static_cast<bool>(node(label)); })) << label << browser_.tree();
        display().click(node(label).place());
        ASSERT_TRUE(wait_until([&] { return node(label).focused(); })) << label << browser_.tree();
    }
    /// Fills the fields of a window that is open and presses its button.
    void fill(std::string_view title, const std::vector<std::pair<std::string, std::string>>& fields,
              std::string_view button) {
        const Accessible window = program_->window(title);
        for (const auto& [label, text] : fields) {
            EXPECT_TRUE(window.find({"text", label}).set_text(text)) << window.tree();
        }
        EXPECT_TRUE(window.find({"push button", button}).press()) << window.tree();
    }
    /// The same, and closes it: it stands before the tree.
    void fill_once(std::string_view title, const std::vector<std::pair<std::string, std::string>>& fields,
                   std::string_view button) {
        ASSERT_TRUE(wait_until([&] { return program_->window(title).active(); })) << title;
        fill(title, fields, button);
        display().press_key("Escape");
        ASSERT_TRUE(wait_until([&] { return !program_->shows(title); })) << title;
    }
};

class Subversion : public VersionControl, public testing::WithParamInterface<const char*> {
  protected:
    /// What Subversion writes when it is asked from outside.
    [[nodiscard]] std::string svn(const std::string& arguments) const {
        const std::string command = "LC_ALL=C.UTF-8 svn --config-dir '" + (home_ / "outside").string() +
                                    "' " + arguments + " >'" + (home_ / "answer").string() + "' 2>&1";
        (void)!std::system(command.c_str());
        return read_file(home_ / "answer");
    }
    void expect_svn(const std::string& arguments, const std::string& expected) const {
        expect_awaited([&] { return svn(arguments); }, expected);
    }
    /// Changes files of the working copy, all in the same way.
    void write_all(const std::vector<std::string>& names, const std::string& text) const {
        for (const std::string& name : names) {
            home_.write(work_ + "/" + name, text);
        }
    }

    const std::string work_ = "project/work@1 copy";
};

TEST_P(Subversion, KeepsNamesAndMessagesAsTheyAre) {
    const std::string name = R"(it's a "$HOME" @2 `id`)";
    const std::string message = R"(say "it's" $HOME `touch pwned` 100%; wow!)";
    const std::string repository = home_ / "repository";
    const std::string url = "file://" + repository;
    const std::string status =
        "status '" + (home_ / work_).string() + "@' | cut -c 1,8- | grep -o '^.\\|[^/]*$'";
    ASSERT_EQ(std::system(("svnadmin create '" + repository + "'").c_str()), 0);
    fs::create_directories(home_ / work_);
    show_project("", GetParam());

    select_node("work@1 copy");
    choose("Subversion", "Checkout");
    fill_once("Checkout from Repository", {{"Repository 1 URL:", url}}, "Checkout");
    expect_in_terminal("Checked out revision 0.");
    write_all({name, "a", "b", "c"}, "first\n");
    double_click("work@1 copy");
    for (const std::string& file : {name, std::string("a"), std::string("b"), std::string("c")}) {
        select_node(file);
        choose("Subversion", "Add");
    }
    expect_svn(status, "A\na\nA\nb\nA\nc\nA\n" + name + "\n");
    select_node("work@1 copy");
    choose("Subversion", "Commit");
    fill_once("Subversion Commit", {{"Message:", message}}, "Commit");
    expect_in_terminal("Committed revision 1.");
    expect_svn("propget svn:log --revprop -r 1 " + url, message + "\n");
    expect_svn("list " + url, "a\nb\nc\n" + name + "\n");

    write_all({name}, "second\n");
    select_node(name);
    choose("Subversion", "Diff");
    expect_in_terminal("\n-first\n+second\n");
    choose("Subversion", "Status (Changes)");
    expect_in_terminal("\nM       " + (home_ / work_).string());
    choose("Subversion", "Log");
    expect_in_terminal("\n" + message + "\n");
    choose("Subversion", "Revert");
    expect_awaited([&] { return read_file(home_ / (work_ + "/" + name)); }, std::string("first\n"));
    choose("Subversion", "Branch/Tag");
    fill_once("Subversion Branch/Tag", {{"Branch/Tag Name:", url + "/tag@2 x"}, {"Message:", message}},
              "Branch/tag");
    expect_svn("cat '" + url + "/tag@2 x@'", "first\n");

    write_all({"a", "b", "c"}, "second\n");
    choose("Subversion", "Commit");
    ASSERT_TRUE(program_->window("Subversion Commit"));
    select_node("a");
    for (int more = 2; more <= 3; ++more) {
        display().press_key("Down");
        display().press_key("space", "Control_L");
    }
    expect_awaited([this] { return footer(browser_, "right footer"); }, std::string("3 selected"));
    fill("Subversion Commit", {}, "Commit");
    for (const char* revision : {"3", "4", "5"}) {
        expect_svn(std::string("propget svn:log --revprop -r ") + revision + " " + url, message + "\n");
    }
    expect_svn(status, "");
    EXPECT_FALSE(fs::exists(home_ / "pwned") || fs::exists(home_ / "project/pwned"));
}

INSTANTIATE_TEST_SUITE_P(Shells, Subversion, testing::Values("/bin/bash", "/bin/tcsh"),
                         [](const auto& row) { return fs::path(row.param).filename().string(); });

/// The tree with a stand-in for the ClearCase tool, which keeps a record and makes directories.
class ClearCase : public VersionControl {
  protected:
    void start() {
        home_.write_script("cleartool",
                           "#!/bin/sh\n{ printf '%s|' \"$@\"; echo; } >>\"$HOME/record\"\n"
                           "[ \"$1\" != mkdir ] || mkdir \"$3\"\n");
        show_project();
        const Accessible setup = open_window("ClearCase Setup");
        EXPECT_TRUE(setup.find({"text", "ClearTool Alias:"}).set_text((home_ / "cleartool").string()));
        display().press_key("Escape");
        (void)open_window("File Tree Browser");  // above the main window again
    }
    [[nodiscard]] std::vector<std::string> record() const {
        std::istringstream lines(read_file(home_ / "record"));
        std::vector<std::string> all;
        for (std::string line; std::getline(lines, line);) {
            all.push_back(line);
        }
        return all;
    }
};

TEST_F(ClearCase, CopiesATreeIntoAVob) {
    constexpr int directories = 20;
    constexpr int files = 20;
    const std::string source = home_ / "project/src";
    const std::string vob = home_ / "vob's";
    fs::remove_all(source);
    std::vector<std::string> made{"mkdir|-nc|" + vob + "|"};
    std::vector<std::string> checked_in{"checkin|-nc|" + vob + "|"};
    for (int i = 0; i < directories; ++i) {
        const std::string directory = "/d `id` " + std::to_string(i);
        made.push_back("mkdir|-nc|" + vob + directory + "|");
        checked_in.push_back("checkin|-nc|" + vob + directory + "|");
        for (int k = 0; k < files; ++k) {
            const std::string file = directory + "/it's $" + std::to_string(k);
            home_.write("project/src" + file, file);
            made.push_back("mkelem|-nc|" + source + file + "|");
            checked_in.push_back("checkin|-nc|" + source + file + "|");
        }
    }
    start();
    select_node("src");
    choose("ClearCase", "Copy Files to Vob");
    const Accessible window = program_->window("Copy Files to Clearcase Vob");
    EXPECT_TRUE(window.find({"check box", "Execute"}).press());
    fill("Copy Files to Clearcase Vob", {{"Destination Directory:", vob}}, "Run");

    constexpr std::chrono::minutes many_programs{1};
    EXPECT_TRUE(wait_until([&] { return record().size() >= made.size() + checked_in.size(); }, many_programs))
        << terminal_.text();
    std::vector<std::string> lines = record();
    EXPECT_TRUE(std::ranges::is_permutation(std::span(lines).first(made.size()), made));
    EXPECT_TRUE(std::ranges::is_permutation(std::span(lines).subspan(made.size()), checked_in));
    EXPECT_EQ(std::system(("diff -r '" + source + "' \"" + vob + "\"").c_str()), 0);
    EXPECT_EQ(footer(window, "left footer"), "File tree walk 2 successful");
}

}  // namespace
