// SPDX-License-Identifier: MIT
#include "app/command_window.h"

#include "app/command_line.h"
#include "app/notify.h"
#include "tests/app/recorded_windows.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/command_window.h"
#include "ui/default_settings.h"
#include "ui/status_display.h"

#include <QLineEdit>

namespace {

class CommandWindowTest : public RecordedWindows {
  protected:
    static QLineEdit& field() { return control<QLineEdit>(command_window(), "C:"); }
    static void press_return_in(std::string_view text) {
        command_window().command.set_text(text);
        QTest::keyClick(&field(), Qt::Key_Return);
    }
    static const std::vector<std::string>& history() { return command_history_manager().list.all_rows(); }
};

TEST_F(CommandWindowTest, ButtonsActOnTheLineAndTheSelection) {
    const std::string none = "No selection made or selection too long";
    const std::string control_characters = "Selection holds control characters";
    const struct {
        const char* name;
        void (*button)();
        std::string line;
        std::string selection;
        std::string last;
        std::string typed;
        std::string footer;
        std::string line_afterwards;
    } cases[] = {
        {"push", CommandWindowPush, "c", "/tmp", "", "pushd /tmp\n", "", "c"},
        {"push, first line", CommandWindowPush, "", "/tmp\n/usr", "", "pushd /tmp\n", "", ""},
        {"push, a name to quote", CommandWindowPush, "", "/a b;c", "", "pushd '/a b;c'\n", "", ""},
        {"push, place in the stack", CommandWindowPush, "", "+1", "", "pushd +1\n", "", ""},
        {"push, home", CommandWindowPush, "", "~/x", "", "pushd " + home.path().string() + "/x\n", "", ""},
        {"push, nothing", CommandWindowPush, "c", "", "", "", none, "c"},
        {"push, empty first line", CommandWindowPush, "c", "\n/tmp", "", "", none, "c"},
        {"push, 1000 characters", CommandWindowPush, "", std::string(1000, 'x'), "", "", none, ""},
        {"push, too long", CommandWindowPush, "", std::string(1001, 'x'), "", "", none, ""},
        {"push, control characters", CommandWindowPush, "", "a\x15", "", "", control_characters, ""},
        {"pop", CommandWindowPop, "c", "s", "", "popd\n", "", "c"},
        {"remove", CommandWindowRemove, "a b", "s", "", "rm a b\n", "", "a b"},
        {"remove, nothing", CommandWindowRemove, "", "s", "", "", "No file", ""},
        {"remove, refused", CommandWindowRemove, "a\x15", "", "", "", "Command holds control characters",
         "a\x15"},
        {"run", CommandWindowRun, "ls -l", "s", "", "ls -l\n", "", "ls -l"},
        {"run, nothing", CommandWindowRun, "", "s", "", "", "No command", ""},
        {"last", CommandWindowLast, "c", "s", "make", "", "", "make"},
        {"last, nothing", CommandWindowLast, "c", "s", "", "", "No command stored", "c"},
        {"get", CommandWindowGet, "c", "a\tb\nc", "", "", "", "a b"},
        {"get, nothing", CommandWindowGet, "c", "", "", "", none, "c"},
        {"clear", CommandWindowClearButton, "c", "s", "", "", "", ""},
    };
    setenv("HOME", home.path().c_str(), 1);
    for (const auto& each : cases) {
        command_window().set_left_footer("what was before");
        command_window().command.set_text(each.line);
        set_selection(each.selection);
        default_settings().last_command.set_text(each.last);
        each.button();
        EXPECT_EQ(typed(), each.typed) << each.name;
        EXPECT_EQ(command_window().left_footer(), each.footer) << each.name;
        EXPECT_EQ(command_window().command.text(), each.line_afterwards) << each.name;
        EXPECT_EQ(default_settings().last_command.text(), each.last) << each.name;
    }
    EXPECT_EQ(history(), std::vector<std::string>{}) << "none of them files";
}

TEST_F(CommandWindowTest, CopyMovesTheCommandOutOfTheShellsLine) {
    constexpr bool by_prompt = false;
    constexpr bool by_delimiter = true;
    const std::string kill = "\x15";
    const struct {
        const char* name;
        bool look_for_delimiter;
        std::string setting;
        std::string shown;
        std::string typed;
        std::string footer;
        std::string line;
    } cases[] = {
        {"prompt", by_prompt, "host%", "host% ls -l", kill, "", "ls -l"},
        {"text behind the cursor", by_prompt, "host%", "host% ls -l\b\b\b", "\x05" + kill, "", "ls -l"},
        {"cursor at the beginning", by_prompt, "$", "$ ls\b\b", "\x05" + kill, "", "ls"},
        {"prompt only", by_prompt, "host%", "host% ", "", "No command found", "c"},
        {"no line", by_prompt, "host%", "\n", "", "Command not saved", "c"},
        {"another prompt", by_prompt, "host%", "other% ls", "", "No prompt found", "c"},
        {"prompt not known", by_prompt, "", "host% ls", "", "No prompt saved", "c"},
        {"delimiter", by_delimiter, ">", "[~/src]> make > x", kill, "", "make > x"},
        {"no delimiter in the line", by_delimiter, ">", "$ make", "", "No delimiter found", "c"},
        {"delimiter not known", by_delimiter, "", "$ make", "", "No delimiter specified", "c"},
        {"wrapped line", by_prompt, "$", "$ " + std::string(100, 'x'), kill, "", std::string(100, 'x')},
    };
    for (const auto& each : cases) {
        default_settings().look_for_ending_delimiter.set_value(each.look_for_delimiter);
        default_settings().prompt.set_text(each.setting);
        default_settings().prompt_ending_delimiter.set_text(each.setting);
        command_window().command.set_text("c");
        command_window().set_left_footer("what was before");
        main_window().set_left_footer("main");
        ttysw_output(main_window().termpane, "earlier\n" + each.shown);
        CommandWindowCopy();
        ttysw_output(main_window().termpane, "\x1b[K\n");
        EXPECT_EQ(typed(), each.typed) << each.name;
        EXPECT_EQ(command_window().left_footer(), each.footer) << each.name;
        EXPECT_EQ(command_window().command.text(), each.line) << each.name;
        EXPECT_EQ(main_window().left_footer(), "main") << each.name;
    }
}

TEST(CommandWindow, CopyLeavesTheLineOfARealShellEmpty) {
    create_windows();
    default_settings().prompt_ending_delimiter.set_text(">");
    TerminalPane& pane = main_window().termpane;
    pane.start(
        {"/bin/bash", {"bash", "--norc", "-i"}, {"PATH=/usr/bin:/bin", "TERM=xterm", "PS1=there> "}, "/"});
    const auto becomes = [&pane](const std::string& before, const std::string& behind) {
        return wait_until(
            [&] {
                const TerminalPane::CurrentLine line = pane.current_line();
                return line.before == before && line.behind == behind;
            },
            patience, [] { QTest::qWait(5); });
    };
    ASSERT_TRUE(becomes("there> ", ""));
    EXPECT_EQ(type_text("echo one two"), "");
    for (int back = 0; back < 3; ++back) {
        type_control('B');
    }
    ASSERT_TRUE(becomes("there> echo one ", "two"));
    CommandWindowCopy();
    EXPECT_EQ(command_window().command.text(), "echo one two");
    EXPECT_TRUE(becomes("there> ", ""));
    destroy_windows();
}

TEST_F(CommandWindowTest, NoCommandIsTakenFromAFullScreenProgram) {
    default_settings().prompt_ending_delimiter.set_text("$");
    ttysw_output(main_window().termpane, "\x1b[?1049h$ ls");
    CommandWindowCopy();
    EXPECT_EQ(command_window().left_footer(), "Couldn't get full line");
    BaseWindowMoveButton();
    EXPECT_EQ(main_window().left_footer(), "Couldn't get full line");
    EXPECT_EQ(typed(), "");
}

TEST_F(CommandWindowTest, ReturnRunsAndFilesTheLine) {
    status_display().status_file.set_text(home.write("status", "C:/there\n").native());
    const std::string longest(79, 'x');
    const std::string too_long(100, 'x');
    for (const std::string& line : {std::string("make all"), std::string("ls"), longest, too_long}) {
        press_return_in(line);
        EXPECT_EQ(typed(), line + "\n");
        EXPECT_EQ(default_settings().last_command.text(), line);
        EXPECT_EQ(command_window().command.text(), line);
    }
    EXPECT_EQ(history(), (std::vector<std::string>{"make all", longest}));
    EXPECT_EQ(command_history_manager().position.value(), 2);
    EXPECT_TRUE(read_file(home / ".orvik-history").ends_with("make all\n" + longest + "\n"));
    EXPECT_TRUE(wait([] { return main_window().cwd.text() == "/there"; })) << "the status is read";
}

TEST_F(CommandWindowTest, ReturnInAnEmptyLineTypesALineFeed) {
    press_return_in("");
    EXPECT_EQ(typed(), "\n");
    EXPECT_EQ(command_window().left_footer(), "");
}

TEST_F(CommandWindowTest, ReturnClearsTheLineWhenAskedTo) {
    default_settings().clear_command_line.set_value(true);
    press_return_in("make all");
    EXPECT_EQ(command_window().command.text(), "");
    EXPECT_EQ(default_settings().last_command.text(), "make all");
}

TEST_F(CommandWindowTest, ARefusedLineIsNeitherFiledNorCleared) {
    default_settings().clear_command_line.set_value(true);
    press_return_in("make\x03 all");
    EXPECT_EQ(typed(), "");
    EXPECT_EQ(command_window().left_footer(), "Command holds control characters");
    EXPECT_EQ(command_window().command.text(), "make\x03 all");
    EXPECT_EQ(default_settings().last_command.text(), "");
    EXPECT_EQ(history(), std::vector<std::string>{});
}

TEST_F(CommandWindowTest, OpensBelowTheMainWindowWithTheKeyboardInItsLine) {
    main_window().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main_window().widget()));
    main_window().widget()->move(100, 50);
    ASSERT_TRUE(wait([] { return main_window().widget()->pos() == QPoint(100, 50); }));
    show_command_window();
    ASSERT_TRUE(QTest::qWaitForWindowActive(command_window().widget()));
    EXPECT_TRUE(wait([] { return command_window().widget()->pos() == QPoint(100, 650); }));
    EXPECT_TRUE(wait([] { return field().hasFocus(); }));
}

}  // namespace
