// SPDX-License-Identifier: MIT
#include "settings/history.h"

#include "shell/messages.h"
#include "tests/settings/history_windows.h"
#include "ui/message_board.h"

#include <QMenu>
#include <QPushButton>

#include <tuple>

#include <sys/stat.h>

namespace {

class HistoryTest : public HistoryWindows {
  protected:
    static int position() { return manager().position.value(); }
    static std::string board() { return message_board().text.text(); }
};

TEST_F(HistoryTest, RecordsByLengthOnceAndSavesForItsOwnerOnly) {
    const std::string bound(79, 'x');
    home.write(".orvik-history", header);
    load_history_at_startup();
    ASSERT_EQ(chmod(file().c_str(), 0644), 0);
    for (const std::string& command : {std::string("ls"), std::string("make"), bound + "x", bound}) {
        record_command(command);
    }
    EXPECT_EQ(list().all_rows(), (Rows{"make", bound}));
    EXPECT_EQ(position(), 2);
    EXPECT_EQ(read_file(file()), header + "make\n" + bound + "\n");
    EXPECT_EQ(std::filesystem::status(file()).permissions(), std::filesystem::perms{0600});
    manager().position.set_value(0);
    record_command("make");
    EXPECT_EQ(list().all_rows(), (Rows{"make", bound}));
    EXPECT_EQ(position(), 2);
    command_history_setup().insert_duplicates.set_value(1);
    record_command("make");
    constexpr int off = 1;
    command_history_setup().history_list.set_value(off);
    record_command("make all");
    EXPECT_EQ(list().all_rows(), (Rows{"make", bound, "make"}));
}

TEST_F(HistoryTest, IsSavedWhenAndWhereItsSetupSays) {
    startup_dir = home / "start";
    std::filesystem::create_directory(startup_dir);
    const std::string start_file = home / "start/.orvik-history";
    const std::tuple<int, int, std::string, bool, bool> cases[] = {
        {0, 0, file(), true, true},
        {0, 1, start_file, true, true},
        {1, 0, file(), false, true},
        {2, 0, file(), false, false},
    };
    for (const auto& [when, where, path, after_command, after_quit] : cases) {
        clear_history(list());
        command_history_setup().save_to_history_file.set_value(when);
        command_history_setup().history_file_stored.set_value(where);
        record_command("make");
        EXPECT_EQ(read_file(path), after_command ? header + "make\n" : "") << when << where;
        EXPECT_EQ(save_history_at_quit(), "");
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
    ASSERT_EQ(chmod(file().c_str(), 0646), 0);
    EXPECT_EQ(start(), "Warning: " + file() + " can be written by other users\n");
    std::filesystem::rename(home / "fifo", file());
    EXPECT_EQ(start(), file() + " not read: Invalid argument\nHistory file not found\n");
    EXPECT_EQ(save_history(list(), file()), 0);
    EXPECT_TRUE(board().ends_with(file() + " not written: Invalid argument\n"));
}

TEST_F(HistoryTest, AFileThatWasNotLoadedIsReplacedOnlyWhenItsUserSaysSo) {
    constexpr int when_quitting = 1;
    const std::string left = file() + " not written: not all of it was loaded before";
    std::string large = header;
    for (int line = 0; line < 100'000; ++line) {
        large += std::to_string(line) + '\n';
    }
    for (const auto& [contents, message, rows] :
         {std::tuple(std::string("make\n"), std::string("Not a valid history file\n"), 0),
          {large, file() + " is too large: only its beginning is loaded\n", 99'999},
          {large + std::string(8'388'608, '\n'), file() + " is too large: only its beginning is loaded\n",
           99'999}}) {
        home.write(".orvik-history", contents);
        clear_history(list());
        clear_window(message_board().text);
        load_history_at_startup();
        EXPECT_EQ(board(), message);
        EXPECT_EQ(list().rows(), rows);
        command_history_setup().save_to_history_file.set_value(0);
        record_command("make");
        record_command("make all");
        command_history_setup().save_to_history_file.set_value(when_quitting);
        EXPECT_EQ(save_history_at_quit(), left);
        EXPECT_EQ(read_file(file()), contents);
    }
    EXPECT_EQ(save_history(list(), file()), 1);
    EXPECT_EQ(save_history_at_quit(), "");
    std::filesystem::remove(file());
    std::filesystem::create_directory(file());
    EXPECT_EQ(save_history_at_quit(), file() + " not written: Is a directory");
}

TEST_F(HistoryTest, AFileThatIsNotThereIsMadeAndThenReplaced) {
    std::filesystem::create_directory(home / "new");
    home_dir = home / "new";
    record_command("make");
    record_command("make all");
    EXPECT_EQ(read_file(home / "new/.orvik-history"), header + "make\nmake all\n");
    clear_history(list());
    record_command("ls -l");
    record_command("ls -a");
    EXPECT_EQ(read_file(home / "new/.orvik-history"), header + "make\nmake all\n") << "was not loaded again";
    EXPECT_EQ(board(), home_dir + "/.orvik-history not written: not all of it was loaded before\n");
}

TEST_F(HistoryTest, TakesInWhatAnotherCopyHasFiledAndTakesOutWhatIsGone) {
    home.write(".orvik-history", header + "make\nls -l\n");
    load_history_at_startup();
    home.write(".orvik-history", header + "make\nls -l\nls -a\nmake all\n");  // another copy
    record_command("make all");
    EXPECT_EQ(list().all_rows(), (Rows{"make", "ls -l", "ls -a", "make all"}));
    EXPECT_EQ(position(), 4);
    home.write(".orvik-history", header + "ls -l\nmake all\ngrep\n");  // one was deleted there
    constexpr int when_quitting = 1;
    command_history_setup().save_to_history_file.set_value(when_quitting);
    record_command("echo");
    EXPECT_EQ(save_history_at_quit(), "");
    EXPECT_EQ(list().all_rows(), (Rows{"ls -l", "make all", "echo", "grep"}));
    EXPECT_EQ(read_file(file()), header + "ls -l\nmake all\necho\ngrep\n");
    home.write(".orvik-history", "no history\n");
    EXPECT_EQ(save_history_at_quit(), file() + " not written: not all of it was loaded before");
    EXPECT_EQ(read_file(file()), "no history\n");
}

TEST_F(HistoryTest, ButtonMakesAMenuOfTheNewestCommandsWhenPressed) {
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
    list().append(Rows{"one", "two", "three"});
    for (const auto& [entries, items] :
         {std::pair(0, Rows{}), {2, Rows{"", "three", "two"}}, {10, Rows{"", "three", "two", "one"}}}) {
        command_history_setup().number_of_entries.set_value(entries);
        EXPECT_EQ(press(), items);
        EXPECT_EQ(main_window().left_footer(), "");
    }
    menu.actions().back()->trigger();
    EXPECT_EQ(main_window().command.text(), "one");
}

TEST_F(HistoryTest, MenuItemRunsOrMovesToTheCommandLineOrBoth) {
    const std::tuple<int, std::string, std::string, std::string, std::string> cases[] = {
        {0, "make", "before", "make\n", ""},
        {1, "make", "make", "", ""},
        {2, "make", "make", "make\n", ""},
        {0, "", "before", "", ""},
        {0, "a\x1b[b", "before", "", "Command holds control characters"},
    };
    for (const auto& [action, item, command, expected_typed, footer] : cases) {
        command_history_setup().menu_action.set_value(action);
        main_window().command.set_text("before");
        EXPECT_EQ(my_action_proc3(item), footer) << action;
        EXPECT_EQ(main_window().command.text(), command) << action;
        EXPECT_EQ(typed(), expected_typed) << action;
    }
}

TEST_F(HistoryTest, IsWalked) {
    constexpr auto key = HistoryWalker::key;
    constexpr auto button = HistoryWalker::button;
    const std::string top = "At the top of history list";
    const std::string bottom = "At the bottom of history list";
    const std::string empty = "History list is empty";
    const Rows three{"a", "b", "c"};
    const struct {
        Rows rows;
        int from;
        Message (*go)(HistoryWalker);
        HistoryWalker walker;
        int to;
        std::string command;
        std::string footer;
        bool rings;
    } cases[] = {
        {three, 3, history_previous, key, 2, "c", "", false},
        {three, 1, history_previous, button, 0, "a", "", false},
        {three, 0, history_previous, key, 0, "", top, true},
        {three, 0, history_previous, button, 0, "", top, true},
        {three, 99, history_previous, key, 2, "c", "", false},
        {three, -5, history_previous, key, -5, "", top, true},
        {three, 1, history_next, button, 2, "c", "", false},
        {three, 2, history_next, key, 2, "", bottom, true},
        {three, 2, history_next, button, 2, "", bottom, false},
        {three, 3, history_next, key, 3, "", bottom, true},
        {three, -5, history_next, key, 0, "a", "", false},
        {{}, 0, history_previous, key, 0, "", empty, false},
        {{}, 0, history_next, button, 0, "", empty, false},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        destroy_windows();
        create_windows();
        list().set_rows(row.rows);
        manager().position.set_value(row.from);
        EXPECT_EQ(row.go(row.walker), row.footer);
        EXPECT_EQ(position(), row.to);
        EXPECT_EQ(main_window().command.text(), row.command);
        // A bell soon after another one is passed over.
        EXPECT_EQ(!main_window().termpane.ring_bell(), row.rings);
        const bool selects = row.walker == button && row.footer.empty();
        EXPECT_EQ(list().selected(), selects ? std::optional(row.to) : std::nullopt);
    }
}

}  // namespace
