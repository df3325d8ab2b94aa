// SPDX-License-Identifier: MIT
#include "settings/history.h"

#include "app/messages.h"
#include "settings/notify.h"
#include "tests/app/recorded_windows.h"
#include "toolkit/terminal_view.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/message_board.h"

#include <QMenu>
#include <QPushButton>

#include <sys/stat.h>

namespace {

using Rows = std::vector<std::string>;

const std::string header = "$ORVIK_HISTORY\n";
const std::string bound(79, 'x');

class HistoryTest : public RecordedWindows {
  protected:
    void SetUp() override {
        RecordedWindows::SetUp();
        CommandHistorySetupInsertDup();
    }

    [[nodiscard]] std::string file() const { return home / ".orvik-history"; }
    static ScrollingList& list() { return command_history_manager().list; }
    static int position() { return command_history_manager().position.value(); }
    static std::string board() { return message_board().text.text(); }
};

TEST_F(HistoryTest, RecordsByLengthAndSavesForItsOwnerOnly) {
    home.write(".orvik-history", "old");
    ASSERT_EQ(chmod(file().c_str(), 0644), 0);
    for (const std::string& command : {std::string("ls"), std::string("make"), bound + "x", bound}) {
        record_command(command);
    }
    EXPECT_EQ(list().all_rows(), (Rows{"make", bound}));
    EXPECT_EQ(position(), 2);
    EXPECT_EQ(read_file(file()), header + "make\n" + bound + "\n");
    struct stat info {};
    ASSERT_EQ(stat(file().c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777U, 0600U);
    constexpr int off = 1;
    command_history_setup().history_list.set_value(off);
    record_command("make all");
    EXPECT_EQ(list().rows(), 2);
}

TEST_F(HistoryTest, DuplicatesAreRefusedUntilTheyAreAllowed) {
    record_command("make");
    record_command("test");
    command_history_manager().position.set_value(0);
    record_command("make");
    EXPECT_EQ(list().all_rows(), (Rows{"make", "test"}));
    EXPECT_EQ(position(), 2);
    command_history_setup().insert_duplicates.set_value(1);
    record_command("make");
    EXPECT_EQ(list().all_rows(), (Rows{"make", "test", "make"}));
}

TEST_F(HistoryTest, IsSavedWhenAndWhereItsSetupSays) {
    startup_dir = home / "start";
    std::filesystem::create_directory(startup_dir);
    struct Case {
        int when;
        int where;
        std::string path;
        bool after_command;
        bool after_quit;
    };
    for (const auto& [when, where, path, after_command, after_quit] :
         {Case{0, 0, home / ".orvik-history", true, true},
          Case{0, 1, home / "start/.orvik-history", true, true},
          Case{1, 0, home / ".orvik-history", false, true},
          Case{2, 0, home / ".orvik-history", false, false}}) {
        clear_history(list());
        command_history_setup().save_to_history_file.set_value(when);
        command_history_setup().history_file_stored.set_value(where);
        record_command("make");
        EXPECT_EQ(read_file(path), after_command ? header + "make\n" : "") << when << where;
        save_history_at_quit();
        EXPECT_EQ(read_file(path), after_quit ? header + "make\n" : "") << when << where;
        std::filesystem::remove(path);
    }
}

TEST_F(HistoryTest, StartsWithItsFile) {
    const std::string no_menu = "Couldn't generate history menu\n";
    ASSERT_EQ(mkfifo((home / "fifo").c_str(), 0600), 0);
    list().append("old");
    const auto start = [&] {
        clear_window(message_board().text);
        load_history_at_startup();
        make_history_menu_at_startup();
        return board();
    };
    const auto loaded = [] { return command_history_setup().history_file_loaded.text(); };
    EXPECT_EQ(start(), "History file not found\n");
    home.write(".orvik-history", "ls\n");
    EXPECT_EQ(start(), "Not a valid history file\n");
    EXPECT_EQ(std::pair(list().all_rows(), loaded()), std::pair(Rows{"old"}, std::string()));
    home.write(".orvik-history", header + "a b\nold\na b\nc");
    EXPECT_EQ(start(), "");
    EXPECT_EQ(std::pair(list().all_rows(), loaded()), std::pair(Rows{"old", "a b", "c"}, file()));
    EXPECT_EQ(position(), 3);
    clear_history(list());
    home.write(".orvik-history", header);
    EXPECT_EQ(start(), no_menu);
    command_history_setup().number_of_entries.set_value(0);
    EXPECT_EQ(start(), "");
    std::filesystem::rename(home / "fifo", file());
    EXPECT_EQ(start(), "History file not found\n");
    EXPECT_EQ(save_history(list(), file()), 0);
    EXPECT_EQ(board(), "History file not found\n" + file() + " not written: Invalid argument\n");
}

TEST_F(HistoryTest, MenuShowsTheNewestCommandsFirst) {
    EXPECT_EQ(add_history_to_menu(list(), 3), std::nullopt);
    list().append(Rows{"one", "two", "three"});
    EXPECT_EQ(add_history_to_menu(list(), 10), (Rows{"", "three", "two", "one"}));
    EXPECT_EQ(add_history_to_menu(list(), 2), (Rows{"", "three", "two"}));
}

TEST_F(HistoryTest, ButtonMakesItsMenuWhenPressed) {
    auto& button = control<QPushButton>(main_window(), "history");
    const QMenu& menu = *button.findChild<QMenu*>();
    const auto press = [&] {
        QTest::keyClick(&button, Qt::Key_Space);
        Rows items;
        for (const QAction* action : menu.actions()) {
            items.push_back(from_qstring(action->text()));
        }
        return items;
    };
    EXPECT_EQ(press(), Rows{});
    EXPECT_EQ(main_window().left_footer(), "Couldn't generate history menu");
    list().append(Rows{"one", "two"});
    EXPECT_EQ(press(), (Rows{"", "two", "one"}));
    EXPECT_EQ(main_window().left_footer(), "");
    menu.actions().back()->trigger();
    EXPECT_EQ(main_window().command.text(), "one");
    command_history_setup().number_of_entries.set_value(0);
    EXPECT_EQ(press(), Rows{});
}

TEST_F(HistoryTest, MenuItemRunsOrMovesToTheCommandLineOrBoth) {
    struct Case {
        int action;
        std::string item;
        std::string command;
        std::string typed;
        std::string footer;
    };
    for (const auto& [action, item, command, expected_typed, footer] :
         {Case{0, "make", "before", "make\n", ""}, Case{1, "make", "make", "", ""},
          Case{2, "make", "make", "make\n", ""}, Case{0, "", "before", "", ""},
          Case{0, "a\x1b[b", "before", "", "Command holds control characters"}}) {
        command_history_setup().menu_action.set_value(action);
        main_window().command.set_text("before");
        my_action_proc3(item);
        EXPECT_EQ(main_window().command.text(), command) << action;
        EXPECT_EQ(main_window().left_footer(), footer) << action;
        EXPECT_EQ(typed(), expected_typed) << action;
    }
}

TEST_F(HistoryTest, IsWalked) {
    constexpr auto key = HistoryWalker::key;
    constexpr auto button = HistoryWalker::button;
    const std::string top = "At the top of history list";
    const std::string bottom = "At the bottom of history list";
    const std::string empty = "History list is empty";
    struct Case {
        Rows rows;
        int from;
        void (*go)(HistoryWalker);
        HistoryWalker walker;
        int to;
        std::string command;
        std::string footer;
        bool rings;
    };
    const Rows three{"a", "b", "c"};
    const std::vector<Case> cases{
        {three, 3, history_previous, key, 2, "c", "", false},
        {three, 1, history_previous, button, 0, "a", "", false},
        {three, 0, history_previous, key, 0, "", top, true},
        {three, 0, history_previous, button, 0, "", top, true},
        {three, 99, history_previous, key, 2, "c", "", false},
        {three, -5, history_previous, key, -5, "", top, true},
        {three, 0, history_next, key, 1, "b", "", false},
        {three, 1, history_next, button, 2, "c", "", false},
        {three, 2, history_next, key, 2, "", bottom, true},
        {three, 2, history_next, button, 2, "", bottom, false},
        {three, 3, history_next, key, 3, "", bottom, true},
        {three, -5, history_next, key, 0, "a", "", false},
        {{}, 0, history_previous, key, 0, "", empty, false},
        {{}, 0, history_next, button, 0, "", empty, false},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& row = cases[i];
        destroy_windows();
        create_windows();
        list().set_rows(row.rows);
        command_history_manager().position.set_value(row.from);
        main_window().command.set_text("");
        main_window().set_left_footer("old");
        row.go(row.walker);
        EXPECT_EQ(position(), row.to) << i;
        EXPECT_EQ(main_window().command.text(), row.command) << i;
        EXPECT_EQ(main_window().left_footer(), row.footer) << i;
        // A bell soon after another one is passed over.
        EXPECT_EQ(!control<TerminalView>(main_window(), "terminal").ring(), row.rings) << i;
        const bool selects = row.walker == button && row.footer.empty();
        EXPECT_EQ(list().selected(), selects ? std::optional(row.to) : std::nullopt) << i;
    }
}

}  // namespace
