// SPDX-License-Identifier: MIT
// What a user keeps ready in files: the user menu, command lists, bookmarks, and the files of a directory.
#include "tests/e2e/orvik_test.h"

namespace {

namespace fs = std::filesystem;

class ReadyCommands : public OrvikTest {
  protected:
    ReadyCommands() {
        for (const char* program : {"editor", "viewer"}) {
            home_.write_script(program,
                               "#!/bin/sh\nprintf '%s' \"$*\" >\"$HOME/part\" && mv \"$HOME/part\" \"$HOME/" +
                                   std::string(program) + ".opened\"\n");
        }
        home_.write("Orvik.setup", setup_text({{18, "1"},
                                               {32, "$HOME/commands"},
                                               {33, "1"},
                                               {34, "450"},
                                               {52, "~/bookmarks"},
                                               {62, "6"},
                                               {63, home_ / "editor"}}));
        setup_.environment["OPENHTML"] = (home_ / "viewer").string() + " html";
        setup_.environment["OPENPDF"] = (home_ / "viewer").string() + " pdf";
    }
    void choose(std::string_view menu, std::initializer_list<std::string_view> items) {
        EXPECT_TRUE(program_->choose(display(), menu, items)) << menu << "\n" << main_.tree();
    }
    /// What a recording program has been started with.
    void expect_opened(const std::string& program, const std::string& arguments) {
        const fs::path record = home_ / (program + ".opened");
        ASSERT_TRUE(wait_until([&] { return fs::exists(record); })) << arguments;
        EXPECT_EQ(read_file(record), arguments);
        fs::remove(record);
    }
    void expect_command(const std::string& expected) const {
        expect_awaited([this] { return field(main_, "Command:"); }, expected);
    }
};

TEST_F(ReadyCommands, TheUserMenuAndTheEditMenuAreChosenFrom) {
    home_.write(".orvik-menu", "_MENU\n$BUTTON_NAME,My Tools\nSay,echo $((6*7))-said\n");
    home_.write("a file", "");
    start_with_shell("/bin/bash");
    choose("My Tools", {"Say"});
    expect_in_terminal("42-said");
    home_.write(".orvik-menu", "_MENU\nSay,echo $((6*7))-again\n");
    choose("My Tools", {"Update"});
    choose("My Tools", {"Say"});
    expect_in_terminal("42-again");
    choose("Edit", {"Home", "a file"});
    expect_opened("editor", home_ / "a file");
    type("mkdir work; touch 'work/it'\\''s; $(here)'; cd work\n");
    expect_cwd(home_ / "work");
    choose("Edit", {"Current", "it's; $(here)"});
    expect_opened("editor", home_ / "work/it's; $(here)");
}

TEST_F(ReadyCommands, ACommandListFillsItsPlaceholders) {
    home_.write("commands/tools", "_COMMANDS\necho [$$$] [%%%] /* says it */\nls @@@ ### &&&\n");
    home_.write("odd; name", "");
    start_with_shell("/bin/bash");
    expect_cwd(home_.path());
    const Accessible browser = open_window("File List Browser");
    ASSERT_TRUE(browser.find({"text", "File Name:"}).set_text("odd; name"));
    display().press_key("Escape");
    choose("Command", {"tools"});
    ASSERT_TRUE(main_.find({"push button", "command list"}).press());
    const Accessible list = program_->window("Command List Manager");
    ASSERT_TRUE(list.find({"text", "Text:"}).set_text("my text"));
    select("two words");
    const Accessible first = list.find({"list item", "echo [$$$] [%%%] /* says it */"});
    ASSERT_TRUE(wait_until([&] { return first.place().width > 0 && list.active(); })) << list.tree();
    display().click(first.place());
    expect_command("echo [two words] [my text]");
    display().press_key("Return");
    expect_in_terminal("\n[two words] [my text]");
    expect_command("");
    display().click(list.find({"list item", "ls @@@ ### &&&"}).place());
    expect_command("ls " + home_.path().string() + " 'odd; name' '" + (home_ / "odd; name").string() + "'");
}

TEST_F(ReadyCommands, BookmarksOfEveryCategoryAct) {
    home_.write_script("run it", "#!/bin/sh\necho $((6*7))-run\n");
    fs::create_directory(home_ / "two words");
    home_.write("bookmarks",
                "$ORVIK_BOOKMARKS\nDirectory:1\nSource:1\nExecutable:1\nScript:1\nHTML:1\nPDF:1\nOther:1\n"
                "$$DIRECTORY\ndir,~/two words\n$$SOURCE\nsource,/a; b.c\n$$EXECUTABLE\nexec,~/run it\n"
                "$$SCRIPT\nscript,~/run it\n$$HTML\npage,/a b.html\n$$PDF\npaper,/$(x).pdf\n"
                "$$OTHER\nother,/etc/hosts\n");
    start_with_shell("/bin/bash");
    choose("BM", {"Executables", "exec"});
    expect_in_terminal("\n42-run");
    choose("BM", {"Scripts", "script"});
    expect_in_terminal("run it'\n42-run\nready> '" + (home_ / "run it").string() + "'");
    display().type(">out\n");
    EXPECT_TRUE(wait_until([this] { return read_file(home_ / "out") == "42-run\n"; }));
    choose("BM", {"Sources", "source"});
    expect_opened("editor", "/a; b.c");
    choose("BM", {"HTML", "page"});
    expect_opened("viewer", "html /a b.html");
    choose("BM", {"PDF", "paper"});
    expect_opened("viewer", "pdf /$(x).pdf");
    choose("BM", {"Other", "other"});
    expect_command("/etc/hosts");
    choose("BM", {"Directories", "dir"});
    expect_cwd(home_ / "two words");
    ASSERT_TRUE(main_.find({"push button", "add bookmark"}).press());
    const Accessible definition = program_->window("Bookmark Definition");
    EXPECT_EQ(field(definition, "Bookmarked File:"), home_ / "two words");
    ASSERT_TRUE(definition.find({"text", "Bookmark Name:"}).set_text("alpha"));
    ASSERT_TRUE(definition.find({"push button", "Add Bookmark"}).press());
    expect_awaited([&] { return footer(definition, "left footer"); },
                   std::string("Bookmark added to bookmark menu"));
    choose("BM", {"Directories", "alpha"});
}

}  // namespace
