// SPDX-License-Identifier: MIT
#include "app/command_window.h"

#include "app/command_line.h"
#include "app/notify.h"
#include "tests/support/recorded_windows.h"
#include "ui/command_history_manager.h"
#include "ui/command_window.h"
#include "ui/default_settings.h"
#include "ui/status_display.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

const std::string refused = "Command holds control characters";

class CommandWindowTest : public RecordedWindows {
  protected:
    static QLineEdit& field() { return control<QLineEdit>(command_window(), "C:"); }
    static const std::vector<std::string>& history() { return command_history_manager().list.all_rows(); }
};

TEST_F(CommandWindowTest, ButtonsActOnTheLineAndTheSelection) {
    const std::string none = "No selection made or selection too long";
    const struct {
        const char* name;
        const char* button;
        std::string line;
        std::string selection;
        std::string last;
        std::string typed;
        std::string footer;
        std::string line_afterwards;
    } cases[] = {
        {"push", "Push", "c", "/tmp\n/usr", "", "pushd /tmp\n", "", "c"},
        {"push, a name to quote", "Push", "", "/a b;c", "", "pushd '/a b;c'\n", "", ""},
        {"push, home", "Push", "", "~/x", "", "pushd " + home.path().string() + "/x\n", "", ""},
        {"push, empty first line", "Push", "c", "\n/tmp", "", "", none, "c"},
        {"push, a tab", "Push", "", "a\tb", "", "", "Selection holds control characters", ""},
        {"push, too long", "Push", "", std::string(1001, 'x'), "", "", none, ""},
        {"pop", "Pop", "c", "s", "", "popd\n", "", "c"},
        {"remove", "Remove", "a b", "s", "", "rm a b\n", "", "a b"},
        {"remove, nothing", "Remove", "", "s", "", "", "No file", ""},
        {"remove, refused", "Remove", "a\x15", "", "", "", refused, "a\x15"},
        {"run", "Run", "ls -l", "s", "", "ls -l\n", "", "ls -l"},
        {"run, nothing", "Run", "", "s", "", "", "No command", ""},
        {"last", "Last", "c", "s", "make", "", "", "make"},
        {"last, nothing", "Last", "c", "s", "", "", "No command stored", "c"},
        {"get", "Get", "c", "a\tb\nc", "", "", "", "a b"},
        {"get, nothing", "Get", "c", "", "", "", none, "c"},
        {"clear", "Clear", "c", "s", "", "", "", ""},
    };
    setenv("HOME", home.path().c_str(), 1);
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        command_window().set_left_footer("what was before");
        command_window().command.set_text(each.line);
        set_selection(each.selection);
        default_settings().last_command.set_text(each.last);
        control<QPushButton>(command_window(), each.button).click();
        EXPECT_EQ(typed(), each.typed);
        EXPECT_EQ(command_window().left_footer(), each.footer);
        EXPECT_EQ(command_window().command.text(), each.line_afterwards);
        EXPECT_EQ(default_settings().last_command.text(), each.last);
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
        {"more blanks", by_prompt, "$", "$  ls ", kill, "", " ls "},
        {"wrapped line", by_prompt, "$", "$ " + std::string(100, 'x'), kill, "", std::string(100, 'x')},
        {"prompt only", by_prompt, "host%", "host% ", "", "No command found", "c"},
        {"prompt without its blank", by_prompt, "host%", "host%", "", "No command found", "c"},
        {"no line", by_prompt, "host%", "\n", "", "Command not saved", "c"},
        {"another prompt", by_prompt, "host%", "other% ls", "", "No prompt found", "c"},
        {"prompt not known", by_prompt, "", "host% ls", "", "No prompt saved", "c"},
        {"first delimiter", by_delimiter, ">", "[~/src]> make > x", kill, "", "make > x"},
        {"long delimiter", by_delimiter, "\u279c\u279c", "user \u279c\u279c caf\u00e9", kill, "",
         "caf\u00e9"},
        {"no delimiter in the line", by_delimiter, ">", "$ make", "", "No delimiter found", "c"},
        {"delimiter not known", by_delimiter, "", "$ make", "", "No delimiter specified", "c"},
        {"full-screen program", by_prompt, "$", "\x1b[?1049h$ ls", "", "Couldn't get full line", "c"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        default_settings().look_for_ending_delimiter.set_value(each.look_for_delimiter);
        default_settings().prompt.set_text(each.setting);
        default_settings().prompt_ending_delimiter.set_text(each.setting);
        command_window().command.set_text("c");
        ttysw_output(main_window().termpane, "earlier\n" + each.shown);
        EXPECT_EQ(CommandWindowCopy(), each.footer);
        ttysw_output(main_window().termpane, "\x1b[K\n");
        EXPECT_EQ(typed(), each.typed);
        EXPECT_EQ(command_window().command.text(), each.line);
    }
    EXPECT_EQ(BaseWindowMoveButton(), "Couldn't get full line") << "from the full-screen program too";
}

TEST_F(CommandWindowTest, MoveHasWordsOfItsOwn) {
    main_window().command.set_text("c");
    ttysw_output(main_window().termpane, "host% ");
    EXPECT_EQ(BaseWindowMoveButton(), "No delimiter specified");
    default_settings().look_for_ending_delimiter.set_value(false);
    EXPECT_EQ(BaseWindowMoveButton(), "No prompter saved");
    default_settings().prompt.set_text("host%");
    EXPECT_EQ(BaseWindowMoveButton(), "No command");
    EXPECT_EQ(main_window().command.text(), "c");
    EXPECT_EQ(typed(), "");
}

TEST_F(CommandWindowTest, ReturnRunsAndFilesTheLine) {
    constexpr bool cleared = true;
    const struct {
        std::string line;
        bool clear;
        std::string typed;
        std::string last;
        std::string line_afterwards;
        std::string footer;
    } cases[] = {
        {"make all", !cleared, "make all\n", "make all", "make all", ""},
        {"make all\x03", cleared, "", "make all", "make all\x03", refused},
        {"make it", cleared, "make it\n", "make it", "", ""},
        {"ls", !cleared, "ls\n", "ls", "ls", ""},
        {"", !cleared, "\n", "", "", ""},
    };
    status_display().status_file.set_text(home.write("status", "C:/there\n").native());
    for (const auto& each : cases) {
        default_settings().clear_command_line.set_value(each.clear);
        command_window().command.set_text(each.line);
        QTest::keyClick(&field(), Qt::Key_Return);
        EXPECT_EQ(typed(), each.typed);
        EXPECT_EQ(default_settings().last_command.text(), each.last);
        EXPECT_EQ(command_window().command.text(), each.line_afterwards);
        EXPECT_EQ(command_window().left_footer(), each.footer);
    }
    EXPECT_EQ(history(), (std::vector<std::string>{"make all", "make it"}));
    EXPECT_TRUE(wait([] { return main_window().cwd.text() == "/there"; })) << "the status is read";
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
