// SPDX-License-Identifier: MIT
#include "settings/bookmarks.h"

#include "settings/bookmark_format.h"
#include "tests/settings/menu_windows.h"
#include "ui/bookmark_definition.h"
#include "ui/bookmarks.h"
#include "ui/file_list_browser.h"

#include <QPushButton>

#include <csignal>
#include <tuple>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class BookmarksTest : public MenuWindows {
  protected:
    void SetUp() override {
        MenuWindows::SetUp();
        bookmarks().bookmark_file.set_text(file());
    }
    [[nodiscard]] std::string file() const { return home / "bookmarks"; }
    static Rows on_main_button() { return lines(main_window().bookmark_menu.menu()); }
    static Rows on_list_button() { return lines(file_list_browser().bookmark_menu.menu()); }
    std::string add(const std::string& name, const std::string& path, int category) {
        bookmark_definition().bookmark_name.set_text(name);
        bookmark_definition().bookmarked_file.set_text(path);
        bookmark_definition().file_type.set_value(category);
        return BookmarkDefinitionAddBookmark();
    }
};

TEST_F(BookmarksTest, AreReadAtStartAndOnUpdateAndSayWhatIsWrong) {
    const std::string valid = new_bookmark_file() + "a,/a\n";
    EXPECT_EQ(board_after(load_bookmarks_at_startup), "Bookmark file not found\n");
    home.write("bookmarks", "no\n");
    EXPECT_EQ(board_after(load_bookmarks_at_startup),
              "Not a valid bookmarks file\nFirst line of text must be _BOOKMARK\n");
    EXPECT_EQ(BookmarksUpdate(), "Not a valid bookmarks file");
    EXPECT_EQ(on_main_button(), Rows{});
    const auto press = [] { QTest::keyClick(&control<QPushButton>(main_window(), "BM"), Qt::Key_Space); };
    const std::string none = "No bookmarks yet: the button \"add bookmark\" makes one";
    EXPECT_EQ(footer_after(press), none);
    home.write("bookmarks", new_bookmark_file());
    EXPECT_EQ(BookmarksUpdate(), "Bookmark menu updated");
    EXPECT_EQ(footer_after(press), none);
    home.write("bookmarks", valid);
    EXPECT_EQ(board_after(load_bookmarks_at_startup), "");
    EXPECT_EQ(footer_after(press), "");
    const Rows categories{"Directories", "Sources", "Executables", "Scripts", "HTML", "PDF", "Other"};
    EXPECT_EQ(on_main_button(), categories);
    EXPECT_EQ(on_list_button(), Rows{});
    std::string many = new_bookmark_file();
    for (int i = 0; i <= 10'000; ++i) {
        many += "a,/a\n";
    }
    home.write("bookmarks", many);
    EXPECT_EQ(BookmarksUpdate(), "Illegal file format");
    fs::remove(file());
    EXPECT_EQ(BookmarksUpdate(), "Bookmark menu updated");
    EXPECT_EQ(read_file(file()), new_bookmark_file());
    fs::remove(file());
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    EXPECT_EQ(BookmarksUpdate(), "Bookmark file not found");
    EXPECT_EQ(on_main_button(), categories);
    bookmarks().bookmark_file.set_text((home / "none/file").string());
    EXPECT_EQ(BookmarksUpdate(), "Couldn't open bookmarks file");
    bookmarks().bookmark_file.set_text("");
    EXPECT_EQ(board_after(load_bookmarks_at_startup), "Bookmarks file not specified\n");
}

TEST_F(BookmarksTest, AreAddedToTheFileAndTheMenus) {
    const std::tuple<std::string, std::string, int, std::string> cases[] = {
        {"", "", 0, "Bookmark name not specified"},
        {"beta", "", 0, "Bookmark not specified"},
        {"a,b", "/b", 0, "Illegal bookmark name. Remove comma."},
        {"beta", "/b", 0, "Bookmark added to bookmark menu"},
        {"alpha", "/a", 0, "Bookmark added to bookmark menu"},
        {"alpha", "/x", 0, "Bookmark already exists"},
        {"alpha", "/x", 6, "Bookmark added to bookmark menu"},
    };
    for (const auto& [name, path, category, footer] : cases) {
        EXPECT_EQ(add(name, path, category), footer);
    }
    const std::string written = read_file(file());
    EXPECT_EQ(written.substr(0, 28), "ORVIK_BOOKMARKS\nDirectory:2\n");
    EXPECT_NE(written.find("$$DIRECTORY\nalpha,/a\nbeta,/b\n$$SOURCE"), std::string::npos);
    EXPECT_EQ(on_list_button(), (Rows{"alpha", "beta"}));
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{written.size(), before.rlim_max};
    const auto old_action = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    const std::string failure = add("c", "/c", 0);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, old_action);
    EXPECT_EQ(failure, "Could not save " + file() + ": File too large");
    EXPECT_EQ(read_file(file()), written);
    home.write("bookmarks", "no\n");
    EXPECT_EQ(add("c", "/c", 0), "Not a valid bookmarks file");
    EXPECT_EQ(read_file(file()), "no\n");
    fs::permissions(file(), fs::perms::none);
    fs::create_directory(home / "directory");
    bookmarks().bookmark_file.set_text((home / "directory").string());
    EXPECT_EQ(add("c", "/c", 0), "Could not save " + (home / "directory").string() + ": Is a directory");
    bookmarks().bookmark_file.set_text("");
    EXPECT_EQ(add("c", "/c", 0), "Bookmark file not specified");
}

TEST_F(BookmarksTest, ActByCategory) {
    const std::string hostile = home.write("a 'b';$(c)", "");
    const std::string quoted = "'" + home.path().string() + "/a '\\''b'\\'';$(c)'";
    setenv("HOME", home.path().c_str(), 1);
    setenv("OPENHTML", (editor() + " -new").c_str(), 1);
    unsetenv("OPENPDF");
    const struct {
        MenuNotify act;
        std::string path;
        std::string expected_typed;
        std::string command;
        std::string opened;
        std::string footer;
    } cases[] = {
        {SetBookmarkDir, "~/x y", "cd '" + (home / "x y").string() + "'\n", "", "", ""},
        {SetBookmarkDir, hostile, "cd " + quoted + "\n", "", "", ""},
        {SetBookmarkDir,
         "a\x1b"
         "b",
         "cd $'a\\033b'\n", "", "", ""},
        {RunBookmarkExec, "/bin/ls", "/bin/ls\n", "", "", ""},
        {RunBookmarkExec, "/bin/ls -l;id", "/bin/ls -l;id\n", "", "", ""},
        {RunBookmarkExec, hostile, quoted + "\n", "", "", ""},
        {RunBookmarkExec, "a\x03", "", "", "", "Command holds control characters"},
        {RunBookmarkScript, hostile, quoted, "", "", ""},
        {RunBookmarkScript, "sh ~/a; ", "sh ~/a; ", "", "", ""},
        {RunBookmarkScript, "", "", "", "", ""},
        {OpenBookmarkOther, hostile + " ", "", hostile + " ", "", ""},
        {OpenBookmarkSource, hostile, "", "", hostile + "|", ""},
        {OpenBookmarkHTML, hostile, "", "", "-new|" + hostile + "|", ""},
        {OpenBookmarkPDF, hostile, "", "", "", "Environment variable OPENPDF is not set"},
        {SetBookmarkDir, "", "", "", "", ""},
        {OpenBookmarkSource, "", "", "", "", ""},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        main_window().command.set_text("");
        EXPECT_EQ(footer_after([&] { return row.act(row.path); }), row.footer);
        EXPECT_EQ(main_window().command.text(), row.command);
        EXPECT_EQ(typed(), row.expected_typed);
        if (!row.opened.empty()) {
            EXPECT_EQ(opened(), row.opened);
        }
    }
    unsetenv("OPENHTML");
}

TEST_F(BookmarksTest, ADirectoryIsShownInTheListBrowser) {
    FileListBrowser& browser = file_list_browser();
    home.write("sub/file", "");
    add("sub", home / "sub", 0);
    browser.file_name.set_text("old");
    choose(browser.bookmark_menu.menu(), "sub");
    EXPECT_TRUE(wait([&] { return browser.left_footer() == "Number of files displayed: 1"; }));
    EXPECT_EQ(browser.list.all_rows(), (Rows{"../ (Go up 1 directory level)", "file"}));
    EXPECT_EQ(browser.list.selected(), 0);
    EXPECT_EQ(browser.directory.text(), (home / "sub").string());
    EXPECT_EQ(browser.file_name.text(), "");
    fs::remove_all(home / "sub");
    choose(browser.bookmark_menu.menu(), "sub");
    EXPECT_TRUE(wait([&] { return browser.left_footer() == "Can't set directory"; }));
    EXPECT_EQ(browser.list.rows(), 2);
}

TEST_F(BookmarksTest, TheFileIsOpenedInTheEditor) {
    EXPECT_EQ(BookmarkFIleEdit(), "Bookmarks file doesn't exists");
    home.write("bookmarks", "");
    EXPECT_EQ(board_after([&] { EXPECT_EQ(BookmarkFIleEdit(), ""); }), editor() + " " + file() + " &\n");
    EXPECT_EQ(opened(), file() + "|");
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(BookmarkFIleEdit(), "User editor not specified");
}

TEST_F(BookmarksTest, TheMainWindowsButtonsDefineOne) {
    home.write("page.html", "");
    home.write("a.c", "");
    const std::string none = "No selection made or selection too long";
    const std::string here = home.path();
    const struct {
        Notify button;
        std::string cwd;
        std::string selection;
        std::string footer;
        std::string path;
        int category;
    } cases[] = {
        {BaseWindowAddBookmark, "", "", "Current directory not set", "", 0},
        {BaseWindowAddBookmark, here, "", "", here, 0},
        {BaseWindowBookmark, "", "a.c", "Current directory not set", "", 0},
        {BaseWindowBookmark, here + "/none", "a.c", "Current directory not found", "", 0},
        {BaseWindowBookmark, here, "  ", none, "", 0},
        {BaseWindowBookmark, here, std::string(1001, 'x'), "Selection too long", "", 0},
        {BaseWindowBookmark, here, "none.html", "Illegal file", "", 0},
        {BaseWindowBookmark, here, " a.c  \nb", "", here + "/a.c", 1},
        {BaseWindowBookmark, here, "page.html", "", here + "/page.html", 4},
    };
    BookmarkDefinition& window = bookmark_definition();
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        window.hide();
        window.bookmarked_file.set_text("");
        window.bookmark_name.set_text("old");
        window.file_type.set_value(0);
        main_window().cwd.set_text(row.cwd);
        set_selection(row.selection);
        EXPECT_EQ(footer_after([&] { return row.button(); }), row.footer);
        EXPECT_EQ(window.bookmarked_file.text(), row.path);
        EXPECT_EQ(window.file_type.value(), row.category);
        EXPECT_EQ(window.shown(), row.footer.empty());
        EXPECT_EQ(window.bookmark_name.text(), row.footer.empty() ? "" : "old");
    }
}

}  // namespace
