// SPDX-License-Identifier: MIT
#include "settings/history.h"
#include "shell/messages.h"
#include "tests/settings/history_windows.h"
#include "ui/message_board.h"
#include "ui/text_editor_setup.h"

#include <QListView>
#include <QPushButton>
#include <QSpinBox>

#include <functional>

namespace {

class HistoryManagerTest : public HistoryWindows {
  protected:
    void SetUp() override {
        HistoryWindows::SetUp();
        multiclick_timeout = 400'000;
        drag_threshold = 5;
    }

    static QListView& view() { return control<QListView>(manager(), "Command History Manager list"); }
    static QPoint middle_of(int row) { return view().visualRect(view().model()->index(row, 0)).center(); }
    static void click(int row) { QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, middle_of(row)); }
    /// As Qt tells it: the second press is an event of its own.
    static void double_click(int row) {
        click(row);
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, middle_of(row));
    }
    static void show() {
        manager().open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(manager().widget()));
    }
    /// What a button leaves: its answer, "Position" and selected row.
    using Outcome = std::tuple<std::string, int, std::optional<int>>;
    static Outcome after(const char* button) {
        manager().set_left_footer("old");
        control<QPushButton>(manager(), button).click();
        return {manager().left_footer(), manager().position.value(), manager().list.selected()};
    }
    static Outcome after(Message (*procedure)()) {
        Message answer = procedure();
        return {std::move(answer), manager().position.value(), manager().list.selected()};
    }
};

TEST_F(HistoryManagerTest, ClickAndKeysTakeARowDoubleClickAndReturnRunIt) {
    list().set_rows({"one", "two", "", "a\x1b[b"});
    show();
    manager().set_left_footer("old");
    main_window().set_left_footer("old");
    click(1);
    EXPECT_EQ(main_window().command.text(), "two");
    EXPECT_EQ(manager().left_footer() + main_window().left_footer(), "");
    double_click(0);
    EXPECT_EQ(main_window().command.text(), "");
    EXPECT_EQ(typed(), "one\n");
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(main_window().command.text(), "two");
    QTest::keyClick(&view(), Qt::Key_Return);
    EXPECT_EQ(main_window().command.text(), "");
    EXPECT_EQ(typed(), "two\n");
    double_click(2);
    EXPECT_EQ(manager().left_footer(), "No command specified");
    double_click(3);
    EXPECT_EQ(manager().left_footer(), "Command holds control characters");
    EXPECT_EQ(main_window().command.text(), "a\x1b[b");
    EXPECT_EQ(typed(), "");
}

TEST_F(HistoryManagerTest, BeginEndAndPositionSelectRows) {
    EXPECT_EQ(after("Begin"), Outcome("", 0, std::nullopt));
    EXPECT_EQ(after("End"), Outcome("", 0, std::nullopt));
    list().set_rows({"a", "b", "c"});
    EXPECT_EQ(after("End"), Outcome("", 2, 2));
    EXPECT_EQ(after("Begin"), Outcome("", 0, 0));
    for (const auto& [position, footer] :
         {std::pair(1, ""), {3, ""}, {4, "There is no such row"}, {-1, "There is no such row"}}) {
        manager().position.set_value(position);
        EXPECT_EQ(after(CommandHistoryPosition), Outcome(footer, position, 1));
    }
    auto& field = control<QSpinBox>(manager(), "Position");
    manager().position.set_value(1);
    QTest::keyClick(&field, Qt::Key_Up);
    EXPECT_EQ(list().selected(), 2);
    manager().position.set_value(0);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(list().selected(), 0);
}

TEST_F(HistoryManagerTest, FindsRows) {
    EXPECT_EQ(after("N"), Outcome("Nothing to search for", 0, std::nullopt));
    manager().find_text.set_text("ak");
    EXPECT_EQ(after("Find"), Outcome("List is empty", 0, std::nullopt));
    list().set_rows({"ls", "make", "AK", "make all"});
    EXPECT_EQ(after("N"), Outcome("Use find first", 0, std::nullopt));
    EXPECT_EQ(after("Find"), Outcome("", 1, 1));
    EXPECT_EQ(after("N"), Outcome("", 3, 3));
    EXPECT_EQ(after("N"), Outcome("Text not found", 3, 3));
    EXPECT_EQ(after(CommandHistoryFindText), Outcome("", 1, 1));
    list().set_rows({"make"});
    EXPECT_EQ(after("N"), Outcome("Use find first", 1, std::nullopt));
}

TEST_F(HistoryManagerTest, SortsByBytesWhatIsNotTooMuch) {
    list().set_rows({"one"});
    EXPECT_EQ(after("Sort"), Outcome("Nothing to sort", 0, std::nullopt));
    list().set_rows({"b", "\xC3\xA9", "B", "a", "a"});
    EXPECT_EQ(after("Sort"), Outcome("", 0, std::nullopt));
    EXPECT_EQ(list().all_rows(), (Rows{"B", "a", "a", "b", "\xC3\xA9"}));
    Rows rows;
    for (int i = 10'000 + 8196; i > 10'000; --i) {
        rows.push_back(std::to_string(i));
    }
    list().set_rows(rows);
    EXPECT_EQ(after("Sort"), Outcome("Too many commands to sort", 0, std::nullopt));
    EXPECT_EQ(list().all_rows(), rows);
    rows.pop_back();
    list().set_rows(rows);
    EXPECT_EQ(after("Sort"), Outcome("", 0, std::nullopt));
    std::ranges::reverse(rows);
    EXPECT_EQ(list().all_rows(), rows);
}

TEST_F(HistoryManagerTest, SavesAndUpdates) {
    list().set_rows({"make"});
    EXPECT_EQ(after("Save"), Outcome("", 0, std::nullopt));
    EXPECT_EQ(read_file(file()), header + "make\n");
    EXPECT_EQ(command_history_setup().history_file_loaded.text(), file());
    EXPECT_EQ(after("Update"), Outcome("", 1, std::nullopt));
    EXPECT_EQ(list().all_rows(), Rows{"make"});
    home.write(".orvik-history", "make\n");
    EXPECT_EQ(after("Update"), Outcome("Not a valid history file", 1, std::nullopt));
    std::filesystem::remove(file());
    EXPECT_EQ(after("Update"), Outcome("History file not found", 1, std::nullopt));
    std::filesystem::create_directory(file());
    EXPECT_EQ(after("Save"), Outcome("Can't save history file", 1, std::nullopt));
}

TEST_F(HistoryManagerTest, EditOpensTheSavedFileInTheUsersEditor) {
    const std::string editor = home.write_script("editor", "#!/bin/sh\nprintf %s \"$2\" >\"$1\"\n").string() +
                               " " + (home / "opened").string();
    home_dir = home / "it's $(id)";
    const std::string path = home_dir + "/.orvik-history";
    list().set_rows({"make"});
    text_editor_setup().user_editor.set_text("");
    EXPECT_EQ(after("Edit"), Outcome("User editor not specified", 0, std::nullopt));
    text_editor_setup().user_editor.set_text(editor);
    EXPECT_EQ(after("Edit"), Outcome("Can't save history file", 0, std::nullopt));
    std::filesystem::create_directory(home_dir);
    EXPECT_EQ(after("Edit"), Outcome("", 0, std::nullopt));
    EXPECT_EQ(command_history_setup().history_file_loaded.text(), path);
    EXPECT_EQ(read_file(path), header + "make\n");
    EXPECT_TRUE(wait([&] { return read_file(home / "opened") == path; })) << read_file(home / "opened");
}

}  // namespace
