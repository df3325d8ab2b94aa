// SPDX-License-Identifier: MIT
#include "settings/user_buttons.h"

#include "settings/notify.h"
#include "shell/operands.h"
#include "tests/support/recorded_windows.h"
#include "toolkit/mnemonics.h"
#include "ui/function_keys.h"
#include "ui/user_buttons.h"

#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace {

class UserButtonsTest : public RecordedWindows {
  protected:
    void TearDown() override {
        set_tree_name_source(nullptr);
        RecordedWindows::TearDown();
    }

    /// The labels of the six buttons, as assistive programs read them.
    static std::vector<std::string> labels() {
        std::vector<std::string> result;
        for (const QPushButton* button : row()->findChildren<QPushButton*>()) {
            EXPECT_EQ(shown_label(button->text()), button->accessibleName());
            result.push_back(from_qstring(button->accessibleName()));
        }
        return result;
    }
    static QWidget* row() { return main_window().user_button_row.widget(); }
    static QWidget* pane() { return main_window().termpane.widget(); }
    static void choose(const char* item) { control<QAbstractButton>(user_buttons(), item).click(); }
    static void press_return(QLineEdit& field) { QTest::keyClick(&field, Qt::Key_Return); }
};

TEST_F(UserButtonsTest, ACommandIsTypedWithItsPlaceholderFilled) {
    const std::string control = "Selection holds control characters";
    const std::string unfit = "Selection too long or error in command";
    const std::string untypable = "Name can't be typed into the shell: ";
    const struct {
        const char* name;
        std::string command;
        std::string selection;
        std::string tree_name;
        std::string typed;
        std::string footer;
    } cases[] = {
        {"plain", "make all", "", "", "make all\n", ""},
        {"none", "", "x", "", "", "Button command not defined"},
        {"first mark, first line", "ls $$$ $$$", "a\nb", "", "ls a $$$\n", ""},
        {"selection as it is", "ls $$$", "a;\tb '$c'", "", "ls a; b '$c'\n", ""},
        {"control character", "ls $$$", "a\x15rm", "", "", control},
        {"no selection", "$$$", "", "", "", unfit},
        {"no selection in a command", "rm -r $$$/*", "", "", "", "No selection made"},
        {"no name in a command", "vi ???.", "", "", "", "Nothing to put for ???"},
        {"longest selection", "$$$", std::string(999, 'x'), "", std::string(999, 'x') + "\n", ""},
        {"selection too long", "$$$", std::string(1000, 'x'), "", "", unfit},
        {"selection before tree", "$$$ ???", "a", "b", "a ???\n", ""},
        {"nothing selected in the tree", "???", "", "", "", unfit},
        {"name that the shell acts on", "vi ???", "", "/a b;c", "vi '/a b;c'\n", ""},
        {"name in quotes", "vi \"???\"", "", "/a b;c", "vi \"/a b;c\"\n", ""},
        {"name live in quotes", "vi \"???\"", "", "/$(a)", "vi \"\"'/$(a)'\"\"\n", ""},
        {"name that is read twice", "eval vi ???", "", "/a;b", "", untypable + "/a;b"},
        {"escaped quote", "vi \\\"???", "", "/a b", "vi \\\"'/a b'\n", ""},
        {"command unfit", "a\x03", "", "", "", "Command holds control characters"},
    };
    std::string tree_name;
    set_tree_name_source([&tree_name] { return tree_name; });
    for (const auto& each : cases) {
        set_selection(each.selection);
        tree_name = each.tree_name;
        user_buttons().command_1.set_text(each.command);
        EXPECT_EQ(UserButton1(), each.footer) << each.name;
        EXPECT_EQ(typed(), each.typed) << each.name;
    }
}

TEST_F(UserButtonsTest, EachButtonTypesTheCommandOfItsNumber) {
    const std::array commands{&user_buttons().command_1, &user_buttons().command_2,
                              &user_buttons().command_3, &user_buttons().command_4,
                              &user_buttons().command_5, &user_buttons().command_6};
    for (std::size_t i = 0; i < commands.size(); ++i) {
        commands[i]->set_text("command " + std::to_string(i + 1));
    }
    for (QPushButton* button : row()->findChildren<QPushButton*>()) {
        button->click();
    }
    EXPECT_EQ(typed(), "command 1\ncommand 2\ncommand 3\ncommand 4\ncommand 5\ncommand 6\n");
}

TEST_F(UserButtonsTest, ALabelIsAppliedWhenItsFieldIsConfirmedOrByUpdateUnlessItIsEmpty) {
    using Labels = std::vector<std::string>;
    EXPECT_EQ(labels(), (Labels{"Button1", "Button2", "Button3", "Button4", "Button5", "Button6"}));
    for (const char* number : {"1", "2", "3", "4", "5", "6"}) {
        auto& field = control<QLineEdit>(user_buttons(), ("Label" + std::string(number) + ":").c_str());
        field.setText(QStringLiteral("M&") + QLatin1String(number));
        if (*number != '6') {
            press_return(field);
        }
    }
    EXPECT_EQ(labels(), (Labels{"M&1", "M&2", "M&3", "M&4", "M&5", "Button6"}));
    user_buttons().label_1.set_text("");
    UserButtonsLabel1();
    UserButtonsUpdate();
    EXPECT_EQ(labels(), (Labels{"M&1", "M&2", "M&3", "M&4", "M&5", "M&6"}));
}

TEST_F(UserButtonsTest, TheRowIsShownOrHiddenAndTheTerminalTakesTheRest) {
    main_window().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main_window().widget()));
    choose("Hide");
    ASSERT_TRUE(wait([] { return row()->height() == 1; }));
    EXPECT_FALSE(row()->findChild<QPushButton*>()->isVisible());
    const int top = row()->y();
    const int bottom = pane()->geometry().bottom();
    ASSERT_TRUE(wait([&] { return pane()->y() == top + 1; }));
    choose("Show");
    SetupUserButtons();  // again: nothing more
    ASSERT_TRUE(wait([] { return row()->height() == 39; }));
    EXPECT_TRUE(row()->findChild<QPushButton*>()->isVisible());
    ASSERT_TRUE(wait([&] { return pane()->y() == top + 39; }));
    EXPECT_EQ(pane()->geometry().bottom(), bottom);
}

TEST_F(UserButtonsTest, TheStartUpTakesTheSettingsOver) {
    constexpr int hide = 0;
    user_buttons().button_window.set_value(hide);
    user_buttons().label_2.set_text("Build");
    user_buttons().command_2.set_text("make <all> && ls");
    set_up_user_buttons_at_startup();
    EXPECT_EQ(row()->height(), 1);
    EXPECT_EQ(labels()[1], "Build");
    const auto tool_tip = [](const char* name) {
        const auto& button = control<QPushButton>(main_window(), name);
        return std::pair(from_qstring(button.accessibleDescription()), button.toolTip());
    };
    EXPECT_EQ(tool_tip("Build"),
              std::pair(std::string("make <all> && ls"), plain_tool_tip("make <all> && ls")));
    user_buttons().command_2.set_text("make");
    EXPECT_EQ(tool_tip("Build").first, "make");
    EXPECT_EQ(tool_tip("Button1").first, "No command yet: define it in \"User Buttons\"");
}

TEST_F(UserButtonsTest, AClickLeavesTheKeyboardToTheTerminal) {
    main_window().show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(main_window().widget()));
    main_window().termpane.set_focus();
    user_buttons().command_1.set_text("make");
    QTest::mouseClick(&control<QPushButton>(main_window(), "Button1"), Qt::LeftButton);
    EXPECT_EQ(typed(), "make\n");
    EXPECT_EQ(main_window().widget()->focusWidget(), pane()->focusProxy());
    control<QPushButton>(user_buttons(), "Function Keys").click();
    EXPECT_TRUE(function_keys().shown());
}

}  // namespace
