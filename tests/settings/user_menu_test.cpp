// SPDX-License-Identifier: MIT
#include "settings/user_menu.h"

#include "tests/settings/menu_windows.h"
#include "ui/edit_menu_setup.h"

#include <QPushButton>

#include <tuple>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

class UserMenuTest : public MenuWindows {
  protected:
    static Rows lines() { return MenuWindows::lines(main_window().user_menu.menu()); }
};

TEST_F(UserMenuTest, IsReadAtStartAndOnUpdateAndSaysWhatIsWrong) {
    const std::tuple<std::string, std::string, std::string, Rows> cases[] = {
        {"_MENU\n$MENU_TITLE,T\na & b,ls\n$BUTTON_NAME,Tools\nc\n",
         "",
         "",
         {"T", "Edit", "Update", "a & b", "c"}},
        {"a,ls\n",
         "Not a valid menu definition file\nFirst line of text must be _MENU\n",
         "Not a valid menu definition file",
         {"Edit", "Update"}},
        {"_MENU\na,ls\n$MENU_TITLE\nb,ls\n",
         "Illegal file format\n",
         "Illegal file format",
         {"Edit", "Update", "a"}},
    };
    EXPECT_EQ(board_after(load_user_menu_at_startup), ".orvik-menu not found\n");
    for (const auto& [text, board, footer, items] : cases) {
        home.write(".orvik-menu", text);
        EXPECT_EQ(board_after(load_user_menu_at_startup), board) << text;
        EXPECT_EQ(footer_after(Generate_new_menu), footer) << text;
        EXPECT_EQ(lines(), items) << text;
    }
    EXPECT_NE(&control<QPushButton>(main_window(), "Tools"), nullptr);
    fs::remove(home / ".orvik-menu");
    ASSERT_EQ(mkfifo((home / ".orvik-menu").c_str(), 0600), 0);
    EXPECT_EQ(footer_after(Generate_new_menu), ".orvik-menu not found");
    EXPECT_EQ(lines(), (Rows{"Edit", "Update"}));
}

TEST_F(UserMenuTest, ItemsAreTypedAsOneLine) {
    home.write(".orvik-menu", "_MENU\nBuild,make all,install\nlabel\nBad,a\x1b[b\n");
    load_user_menu_at_startup();
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"Build", "make all,install\n", ""},
        {"label", "", ""},
        {"Bad", "", "Command holds control characters"},
    };
    for (const auto& [label, expected, footer] : cases) {
        EXPECT_EQ(footer_after([&] { choose(main_window().user_menu.menu(), label); }), footer);
        EXPECT_EQ(typed(), expected);
    }
    choose(main_window().user_menu.menu(), "Edit");
    EXPECT_EQ(opened(), (home / ".orvik-menu").string() + "|");
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(footer_after(Edit_user_menu), "User editor not specified");
}

TEST_F(UserMenuTest, StaysUsableWhateverTheFileHolds) {
    std::string text = "_MENU\n" + std::string(1'000'000, 'x') + "\n\xff\x00%s%n,ls\n";
    for (int i = 0; i < 10'000; ++i) {
        text += "entry " + std::to_string(i) + ",ls\n";
    }
    home.write(".orvik-menu", text);
    EXPECT_EQ(footer_after(Generate_new_menu), "Illegal file format");
    EXPECT_EQ(lines().size(), 10'002U);
    auto& button = control<QPushButton>(main_window(), "User");
    QTest::keyClick(&button, Qt::Key_Space);
    const QWidget& menu = *main_window().user_menu.menu().widget();
    ASSERT_TRUE(wait([&] { return menu.isVisible(); }));
    EXPECT_LE(menu.width(), 1000);
}

class DirectoryMenus : public MenuWindows {
  protected:
    void SetUp() override {
        MenuWindows::SetUp();
        home.write("own/a file", "");
        fs::create_directory(home / "own/sub");
        home_dir = home / "own";
    }
    static void show(PullRight& item) { Q_EMIT item.menu().widget()->aboutToShow(); }
    /// With what stands below the entries.
    static Rows with_counts(Rows entries, int total) {
        const auto shown = std::to_string(entries.size());
        for (const std::string& line : {std::string(), "Total number of files  " + std::to_string(total),
                                        "Files displayed            " + shown}) {
            entries.push_back(line);
        }
        return entries;
    }
};

TEST_F(DirectoryMenus, ShowADirectoryEachTimeOrOnce) {
    constexpr int current_only = 1;
    MainWindow& window = main_window();
    edit_menu_setup().update_directory.set_value(current_only);
    window.cwd.set_text("$HOME/own");
    setenv("HOME", home.path().c_str(), 1);
    for (PullRight* item : {&window.edit_current, &window.edit_home, &window.edit_startup}) {
        show(*item);
        EXPECT_EQ(lines(item->menu()), with_counts({"a file", "sub/"}, 2));
    }
    home.write("own/.dot", "");
    home.write("own/new", "");
    const Rows later = with_counts({"a file", "new", "sub/"}, 4);
    for (const auto& [item, is_new] : {std::pair(&window.edit_current, true), {&window.edit_home, false}}) {
        show(*item);
        EXPECT_EQ(lines(item->menu()) == later, is_new);
    }
    edit_menu_setup().update_directory.set_value(0);
    show(window.edit_startup);
    EXPECT_EQ(lines(window.edit_startup.menu()), later);
}

TEST_F(DirectoryMenus, SayWhyTheyAreEmpty) {
    MainWindow& window = main_window();
    const auto footers = [&] {
        return Rows{footer_after([&] { show(window.edit_current); }),
                    footer_after([&] { show(window.edit_home); }),
                    footer_after([&] { show(window.edit_startup); })};
    };
    home_dir = startup_dir = "";
    EXPECT_EQ(footers(), (Rows{"Current directory not defined", "Home directory not defined",
                               "Startup directory not defined"}));
    home_dir = startup_dir = home / "none";
    window.cwd.set_text(home_dir);
    EXPECT_EQ(footers(),
              (Rows{"Illegal current directory", "Illegal home directory", "Illegal startup directory"}));
    for (int i = 0; i < 200; ++i) {
        home.write("many/f" + std::to_string(i), "");
    }
    home_dir = home / "many";
    window.cwd.set_text(home_dir);
    EXPECT_EQ(footers(), Rows(3, "Too many files"));
    EXPECT_FALSE(window.edit_current.menu().has_entries());
}

TEST_F(DirectoryMenus, OpenFilesInTheEditorAndNothingElse) {
    const std::string name = "it's $(a) \xff\n-";
    home.write("own/" + name, "");
    show(main_window().edit_home);
    choose(main_window().edit_home.menu(), "sub/");
    choose(main_window().edit_home.menu(), "Files displayed            3");
    my_action_proc((home / "own/" / name).string());
    EXPECT_EQ(opened(), (home / "own/" / name).string() + "|");
    choose(main_window().edit_home.menu(), "a file");
    EXPECT_EQ(opened(), (home / "own/a file").string() + "|");
}

}  // namespace
