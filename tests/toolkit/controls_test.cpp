// SPDX-License-Identifier: MIT
#include "tests/toolkit/find_widget.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/message_item.h"
#include "toolkit/mnemonics.h"
#include "toolkit/scrolling_list.h"
#include "toolkit/text_pane.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

int notified = 0;
void note() { ++notified; }

Message answer() { return "answer"; }
Message answer_value(const std::string& value) { return value; }
Message answer_row(const ListEvent& event) { return std::to_string(event.row); }

constexpr MenuItem items[] = {{"First", note}, {"Second & third", note}};
constexpr MenuItem answering_items[] = {{"First", note}, {"Answer", answer}};

struct Sample : CommandFrame {
    Sample() : CommandFrame("Sample") {}
    TextField text{panel, "Text:", note};
    NumberField number{panel, "Number:", 5};
    Choice choice{panel, "Choice", {"One", "Two", "Three"}, note};
    CheckBoxes boxes{panel, "Boxes", {"A", "B", "C"}, note};
    CheckBox single{panel, "Single"};
    TextField second{panel, {"Text:", "Text: (second)"}};
    CheckBox other{panel, {"Single", "Single (other)"}};
    MessageItem message{panel, "Message", "Size: 1"};
    Row row{panel};
    Button button{row, "Push & go", note};
    MenuButton menu{row, "Menu", Menu("Title", items)};
    MenuButton empty_menu{row, "Empty", Menu({})};
    MenuButton last_menu{row, "Last", Menu("Last title", items)};
    TextPane pane{panel, "Sample text"};
};

/// Controls whose procedures answer.
struct Answering : CommandFrame {
    Answering() : CommandFrame("Answering") {}
    TextField text{panel, "Text:", answer};
    NumberField number{panel, "Number:", 5, answer};
    Choice choice{panel, "Choice", {"One", "Two"}, answer};
    ScrollingList list{panel, "List", answer_row};
    Button button{panel, "Push", answer};
    ImageButton image{panel, "Image", answer, "Answers"};
    MenuButton menu{panel, "Menu", Menu("Title", answering_items), answer};
    PullRight pull_right{menu, "More", nullptr};
};

class Controls : public testing::Test {
  protected:
    void SetUp() override {
        notified = 0;
        sample.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sample.widget()));
    }

    template <typename Widget>
    Widget* find(const QString& name) {
        return find_widget<Widget>(sample.widget(), name);
    }

    Frame base{"Base"};
    Sample sample;
};

TEST_F(Controls, HaveNamesAndRolesForAssistivePrograms) {
    const std::pair<const char*, QAccessible::Role> expected[] = {
        {"Text:", QAccessible::EditableText},
        {"Number:", QAccessible::SpinBox},
        {"Choice", QAccessible::Grouping},
        {"One", QAccessible::RadioButton},
        {"Boxes", QAccessible::Grouping},
        {"A", QAccessible::CheckBox},
        {"Push & go", QAccessible::Button},
        {"Menu", QAccessible::ButtonMenu},
        {"Sample text", QAccessible::EditableText},
        {"Single", QAccessible::CheckBox},
        {"Text: (second)", QAccessible::EditableText},
        {"Single (other)", QAccessible::CheckBox},
        {"Size: 1", QAccessible::StaticText},
    };
    for (const auto& [name, role] : expected) {
        auto* widget = find<QWidget>(name);
        ASSERT_NE(widget, nullptr) << name;
        const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_EQ(interface->role(), role) << name;
        EXPECT_EQ(interface->text(QAccessible::Name), name);
    }
}

TEST_F(Controls, FieldsKeepWhatIsSet) {
    sample.text.set_text("a\xFFz");
    EXPECT_EQ(sample.text.text(), "a\xFFz");
    EXPECT_EQ(notified, 0);
    QTest::keyClick(find<QLineEdit>("Text:"), Qt::Key_Return);
    EXPECT_EQ(notified, 1);
    EXPECT_EQ(sample.number.value(), 5);
    sample.number.set_value(-2147483647);
    EXPECT_EQ(sample.number.value(), -2147483647);
}

TEST_F(Controls, WhatIsPastedIntoACommandBecomesOneLine) {
    sample.text.take_pasted_commands();
    auto& field = *find<QLineEdit>("Text:");
    const auto paste = [&](const char* text) {
        field.setFocus();
        sample.text.set_text("<XX>");
        field.setSelection(1, 2);
        QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        return sample.text.text();
    };
    for (const auto& [pasted, expected] : {std::pair("ls -l\n", "<ls -l>"),
                                           {"ls\t-l\r\n", "<ls -l>"},
                                           {"a\tXX", "<a XX>"},
                                           {"\n", "<>"},
                                           {"a\x1b", "<a\x1b>"}}) {
        EXPECT_EQ(paste(pasted), expected);
        EXPECT_EQ(field.cursorPosition(), field.text().size() - 1);
        field.undo();
        EXPECT_EQ(sample.text.text(), "<XX>");
    }
    for (const auto& [button, expected] : {std::pair("Cancel", "<XX>"), {"Paste", "<a b >"}}) {
        EXPECT_EQ(paste("a\nb\n\n"), "<XX>") << "it is shown first";
        auto* const review = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(review, nullptr);
        for (QPushButton* each : review->findChildren<QPushButton*>()) {
            if (each->text() == QLatin1String(button)) {
                each->click();
            }
        }
        EXPECT_EQ(sample.text.text(), expected);
    }
}

TEST_F(Controls, AChoiceHasOneValueAndNotifiesItsUserOnly) {
    EXPECT_EQ(sample.choice.value(), 0);
    sample.choice.set_value(2);
    EXPECT_EQ(sample.choice.value(), 2);
    for (const int without_item : {3, -1, 2147483647, -2147483647}) {
        sample.choice.set_value(1);
        sample.choice.set_value(without_item);
        EXPECT_EQ(sample.choice.value(), 0) << without_item;
    }
    EXPECT_EQ(notified, 0);
    find<QAbstractButton>("Two")->click();
    find<QAbstractButton>("Two")->click();
    EXPECT_EQ(sample.choice.value(), 1);
    EXPECT_EQ(notified, 1);
    find<QAbstractButton>("One")->toggle();  // as assistive programs do
    EXPECT_EQ(notified, 2);
    sample.choice.set_value(2);
    find<QAbstractSpinBox>("Number:")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find<QAbstractButton>("Three"));
}

TEST_F(Controls, CheckBoxesAreBitsAndASingleOneIsInNoGroup) {
    sample.boxes.set_value(0xFFFFFFFD);
    EXPECT_EQ(sample.boxes.value(), 5U);
    EXPECT_EQ(notified, 0);
    find<QAbstractButton>("B")->click();
    EXPECT_EQ(sample.boxes.value(), 7U);
    EXPECT_EQ(notified, 1);

    auto* box = find<QAbstractButton>("Single");
    EXPECT_EQ(find<QAbstractButton>("Single (other)")->text(), "Single");
    EXPECT_NE(QAccessible::queryAccessibleInterface(box->parentWidget())->role(), QAccessible::Grouping);
    EXPECT_FALSE(sample.single.value());
    box->click();
    EXPECT_TRUE(sample.single.value());
    EXPECT_FALSE(sample.other.value());
    sample.single.set_value(false);
    EXPECT_FALSE(box->isChecked());
}

TEST_F(Controls, AMessageIsNamedByItsTextAndDescribedByItsLabel) {
    sample.message.set_text("Size: 2 &");
    const auto* line = find<QLabel>("Size: 2 &");
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->text(), "Size: 2 &");
    EXPECT_EQ(line->accessibleDescription(), "Message");
}

TEST_F(Controls, AMenuShowsItsTitleAndCallsItsItems) {
    find<QAbstractButton>("Push & go")->click();
    EXPECT_EQ(notified, 1);
    QAccessible::queryAccessibleInterface(find<QPushButton>("Menu"))->actionInterface()->doAction("Press");
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_TRUE(menu->actions()[0]->isSeparator());
    EXPECT_EQ(menu->actions()[0]->text(), "Title");
    EXPECT_EQ(menu->actions()[2]->text(), "&Second && third");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(notified, 2);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(find<QPushButton>("Menu"), Qt::Key_Space);
    EXPECT_EQ(QApplication::activePopupWidget(), menu);
    menu->close();
}

TEST_F(Controls, LeftAndRightWalkFromMenuToMenu) {
    const auto title = [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return menu == nullptr ? QString() : menu->actions().front()->text();
    };
    QTest::keyClick(find<QPushButton>("Menu"), Qt::Key_Space);
    ASSERT_EQ(title(), "Title");
    for (const auto& [key, expected] :
         {std::pair(Qt::Key_Right, "Last title"), std::pair(Qt::Key_Right, "Title"),
          std::pair(Qt::Key_Left, "Last title"), std::pair(Qt::Key_Left, "Title")}) {
        QTest::keyClick(QApplication::activePopupWidget(), key);
        EXPECT_EQ(title(), expected);
    }
    QApplication::activePopupWidget()->close();
}

TEST_F(Controls, AMnemonicOpensItsMenu) {
    QTest::keyClick(sample.widget(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 5000));
    QApplication::activePopupWidget()->close();
}

TEST_F(Controls, AFieldActsOnItsKeys) {
    sample.text.set_keys({.up = note, .escape = note});
    auto* field = find<QLineEdit>("Text:");
    QTest::keyClick(field, Qt::Key_Up);
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(notified, 2);
    EXPECT_TRUE(sample.shown()) << "Escape is the field's";
    QTest::keyClick(field, Qt::Key_Down);
    EXPECT_EQ(notified, 2);
}

TEST_F(Controls, ChangesAreTold) {
    for (const auto& watch : std::initializer_list<std::function<void()>>{
             [&] { sample.number.on_change(note); }, [&] { sample.choice.on_change(note); },
             [&] { sample.boxes.on_change(note); }, [&] { sample.single.on_change(note); }}) {
        watch();
    }
    sample.number.set_value(6);
    EXPECT_EQ(notified, 1);
    find<QAbstractButton>("Single")->click();
    EXPECT_EQ(notified, 2);
    sample.choice.set_value(1);
    find<QAbstractButton>("A")->click();
    EXPECT_EQ(notified, 4) << "its own procedure and the watcher";
}

TEST_F(Controls, AButtonTellsTheLabelThatHasNoRoom) {
    auto* button = find<QPushButton>("Push & go");
    sample.button.set_label("A label of a user's own that is long");
    sample.button.set_tool_tip("make <all>");
    for (const auto& [width, tip] :
         {std::pair(60, "A label of a user's own that is long make <all>"), std::pair(600, "make <all>")}) {
        button->setFixedWidth(width);
        QHelpEvent event(QEvent::ToolTip, {1, 1}, button->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(button, &event);
        EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().simplified(), tip);
        QToolTip::hideText();
    }
}

TEST(Mnemonics, AreLettersOfTheirOwn) {
    EXPECT_EQ(with_mnemonics({"Save Setup", "Sort", "Sap", "R && &D", "\u00E9", "s", "Save"}),
              QStringList({"&Save Setup", "S&ort", "S&ap", "&R && D", "\u00E9", "s", "Sa&ve"}));
    EXPECT_EQ(with_mnemonics({"&& x", "x"}), QStringList({"&& &x", "x"}));
    EXPECT_EQ(shown_label("a && &b"), "a & b");
}

TEST_F(Controls, TextGoesInAtTheInsertionPoint) {
    textsw_insert(sample.pane, "one\nthree\n");
    textsw_set_insertion_point(sample.pane, 4);
    textsw_insert(sample.pane, "two\n");
    textsw_set_insertion_point(sample.pane, textsw_infinity);
    textsw_insert(sample.pane, "four");
    EXPECT_EQ(sample.pane.text(), "one\ntwo\nthree\nfour");
    textsw_reset(sample.pane);
    EXPECT_EQ(sample.pane.text(), "");
}

TEST_F(Controls, WhatAProcedureAnswersIsShownInTheWindowOfItsControl) {
    Answering window;
    window.open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.widget()));
    window.list.set_rows(std::vector<std::string>{"row"});
    window.pull_right.menu().set_entries({{"Entry", "value"}}, answer_value);
    const auto widget = [&](const char* name) { return find_widget<QWidget>(window.widget(), name); };
    const auto item = [&](QMenu* menu, const char* label) {
        for (QAction* action : menu->actions()) {
            if (shown_label(action->text()) == QLatin1String(label)) {
                action->trigger();
            }
        }
    };
    QMenu* menu = window.menu.menu().widget();
    const std::pair<std::function<void()>, std::string> cases[] = {
        {[&] { QTest::keyClick(widget("Text:"), Qt::Key_Return); }, "answer"},
        {[&] { QTest::keyClick(widget("Number:"), Qt::Key_Up); }, "answer"},
        {[&] { find_widget<QAbstractButton>(window.widget(), "Two")->click(); }, "answer"},
        {[&] { find_widget<QAbstractButton>(window.widget(), "Push")->click(); }, "answer"},
        {[&] { find_widget<QAbstractButton>(window.widget(), "Image")->click(); }, "answer"},
        {[&] { QTest::keyClick(widget("List"), Qt::Key_Down); }, "0"},
        {[&] { QTest::keyClick(widget("Menu"), Qt::Key_Space); }, "answer"},
        {[&] { item(menu, "Answer"); }, "answer"},
        {[&] { item(window.pull_right.menu().widget(), "Entry"); }, "value"},
        {[&] { item(menu, "First"); }, "old"},
    };
    for (const auto& [act, footer] : cases) {
        SCOPED_TRACE(&act - &cases[0].first);
        window.set_left_footer("old");
        sample.set_left_footer("sample");
        act();
        EXPECT_EQ(window.left_footer(), footer);
        EXPECT_EQ(sample.left_footer(), "sample");
    }
    menu->close();
}

}  // namespace
