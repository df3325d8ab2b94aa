// SPDX-License-Identifier: MIT
#include "settings/command_list.h"

#include "shell/operands.h"
#include "tests/settings/menu_windows.h"
#include "toolkit/scrolling_list.h"
#include "ui/command_list_manager.h"
#include "ui/command_list_setup.h"
#include "ui/file_list_browser.h"

#include <QListView>
#include <QPushButton>

#include <tuple>

namespace {

class CommandListTest : public MenuWindows {
  protected:
    static CommandListManager& manager() { return command_list_manager(); }
    static std::string loaded() { return command_list_setup().commands_file_loaded.text(); }
    /// Return on a list of one row.
    static Message send(const std::string& row) {
        manager().list.set_rows(std::vector<std::string>{row});
        return Command_scrolling_list({.kind = ListEvent::Kind::activate, .row = 0});
    }
};

TEST_F(CommandListTest, FilesAreChosenFromTheCommandMenu) {
    const auto open_menu = [] {
        return footer_after(
            [] { QTest::keyClick(&control<QPushButton>(main_window(), "Command"), Qt::Key_Space); });
    };
    EXPECT_EQ(board_after(make_command_menu_at_startup), "Illegal commands directory\n");
    EXPECT_EQ(open_menu(), "Illegal commands directory");
    home.write("commands/good", "_COMMANDS\nls\nmake /* all */\n");
    home.write("commands/bad", "ls\n");
    home.write("commands/sub/file", "");
    setenv("HOME", home.path().c_str(), 1);
    command_list_setup().commands_directory.set_text("~/commands");
    EXPECT_EQ(board_after(make_command_menu_at_startup), "");
    EXPECT_EQ(open_menu(), "");
    const Menu& menu = main_window().command_menu.menu();
    EXPECT_EQ(lines(menu), (Rows{"bad", "good", "sub/"}));
    EXPECT_FALSE(manager().shown());
    choose(menu, "good");
    EXPECT_TRUE(manager().shown());
    const std::string good = home / "commands/good";
    EXPECT_EQ(manager().list.all_rows(), (Rows{"ls", "make /* all */"}));
    EXPECT_EQ(loaded(), good);
    std::filesystem::remove(good);
    EXPECT_EQ(footer_after([&] { choose(menu, "bad"); }), "Illegal format of commands file");
    EXPECT_EQ(footer_after([&] { choose(menu, "good"); }), "Couldn't open commands file for reading");
    EXPECT_EQ(footer_after([&] { choose(menu, "sub/"); }), "");
    EXPECT_EQ(loaded(), good);
    EXPECT_EQ(manager().list.rows(), 2);
}

TEST_F(CommandListTest, TheLoadedFileIsEditedAndReadAgain) {
    TextField& file = command_list_setup().commands_file_loaded;
    const auto footers = [] { return Rows{Edit_commands_file(), Update_commands_list()}; };
    EXPECT_EQ(footers(), Rows(2, "No commands file loaded"));
    file.set_text((home / "none").string());
    EXPECT_EQ(footers(), Rows(2, "Commands file not found"));
    const std::string path = home.write("list", "ls\n");
    file.set_text(path);
    EXPECT_EQ(board_after([&] {
                  EXPECT_EQ(footers(), (Rows{"", "Not a valid file"}));
              }),
              editor() + " " + path + " &\n");
    EXPECT_EQ(opened(), path + "|");
    home.write("list", "_COMMANDS\nls");
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(footers(), (Rows{"User editor not specified", ""}));
    EXPECT_EQ(manager().list.all_rows(), Rows{"ls"});
    file.set_text(home.path().string());
    EXPECT_EQ(Update_commands_list(), "File not found");
}

TEST_F(CommandListTest, TheListBrowserLoadsItsFile) {
    FileListBrowser& browser = file_list_browser();
    browser.directory.set_text(home.path().string());
    const auto load = [&](const char* name) {
        browser.file_name.set_text(name);
        return FileListLoadCommand();
    };
    home.write("list", "_COMMANDS\nls");
    home.write("bad", "");
    EXPECT_EQ(load(""), "File name not specified");
    EXPECT_EQ(load("none"), "File not found");
    EXPECT_EQ(load("bad"), "Not a valid file");
    EXPECT_EQ(load("list"), "Commands loaded from " + (home / "list").string());
    EXPECT_EQ(loaded(), (home / "list").string());
}

TEST_F(CommandListTest, PlaceholdersAreFilledAndNamesQuoted) {
    manager().text.set_text("some text");
    main_window().cwd.set_text("/a b");
    file_list_browser().directory.set_text("/dir");
    file_list_browser().file_name.set_text("it's;x");
    set_tree_name_source([] { return std::string("/tree/$(x)"); });
    const std::string none = "Selection too long or no selection made";
    const struct {
        std::string row;
        std::string selection;
        std::string expected;
        std::string footer;
    } cases[] = {
        {"ls -l  /* all */ ", "", "ls -l\n", ""},
        {"a $$$ $$$ $$$", "x\ty\nz", "a x y x y $$$\n", ""},
        {"a %%%%%% $$$", "%%%", "a some textsome text %%%\n", ""},
        {"a ###", "", "a 'it'\\''s;x'\n", ""},
        {"a \"###\" @@@", "", "a \"it's;x\" '/a b'\n", ""},
        {"a &&&", "", "a '/dir/it'\\''s;x'\n", ""},
        {"a ???", "", "a '/tree/$(x)'\n", ""},
        {"eval a ???", "", "", "Name can't be typed into the shell: /tree/$(x)"},
        {"a $$$", "", "", none},
        {"a $$$", std::string(1001, 'x'), "", "Selection too long"},
        {"a $$$", std::string(1000, 'x'), "", none},
        {"a $$$", "\x1b[A", "", "Selection holds control characters"},
        {"", "", "", "No command specified"},
    };
    for (const auto& row : cases) {
        set_selection(row.selection);
        EXPECT_EQ(send(row.row), row.footer) << row.row;
        EXPECT_EQ(typed(), row.expected) << row.row;
        EXPECT_EQ(main_window().command.text(), "") << row.row;
    }
    set_tree_name_source({});
    manager().text.set_text("");
    main_window().cwd.set_text("");
    file_list_browser().file_name.set_text("");
    for (const std::string mark : {"@@@", "###", "&&&", "???"}) {
        EXPECT_EQ(send("rm -r " + mark + "/*"), "Nothing to put for " + mark);
        EXPECT_EQ(typed(), "");
    }
    send("a %%%.");
    EXPECT_EQ(typed(), "a .\n");
}

TEST_F(CommandListTest, ASingleClickOnlyFillsTheCommandLine) {
    multiclick_timeout = 400'000;
    drag_threshold = 5;
    manager().list.set_rows(std::vector<std::string>{"ls /* files */"});
    manager().open();
    auto& view = control<QListView>(manager(), "Command List Manager list");
    const QPoint middle = view.visualRect(view.model()->index(0, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(main_window().command.text(), "ls");
    EXPECT_EQ(typed(), "");
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle);
    EXPECT_EQ(main_window().command.text(), "");
    EXPECT_EQ(typed(), "ls\n");
}

TEST_F(CommandListTest, TheListFollowsItsWindowOrIsNarrower) {
    auto& view = control<QListView>(manager(), "Command List Manager list");
    const auto free_width = [&] {
        QTest::qWait(0);
        return view.parentWidget()->width() - view.width();
    };
    manager().open();
    size_command_list();
    EXPECT_TRUE(wait([&] { return manager().width() == 450 && free_width() == 0; }));
    command_list_setup().follow_window_size.set_value(0);
    CommandListFollowWindow();
    EXPECT_TRUE(wait([&] { return free_width() == 40; }));
    command_list_setup().window_width.set_value(600);
    CommandListSetupWindowWidth();
    EXPECT_TRUE(wait([&] { return manager().width() == 600 && free_width() == 40; }));
}

}  // namespace
