// SPDX-License-Identifier: MIT
#include "tests/toolkit/find_widget.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/menu_button.h"
#include "toolkit/message_item.h"
#include "toolkit/selection.h"
#include "toolkit/text_pane.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace {

int notified = 0;
void note() { ++notified; }

constexpr MenuItem items[] = {{"First", note}, {"Second & third", note}};

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
    TextPane pane{panel, "Sample text"};
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
    EXPECT_EQ(menu->actions()[2]->text(), "Second && third");
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_EQ(notified, 2);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(find<QPushButton>("Menu"), Qt::Key_Space);
    EXPECT_EQ(QApplication::activePopupWidget(), menu);
    menu->close();
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

TEST_F(Controls, ThePrimarySelectionIsText) {
    QApplication::clipboard()->setText(QStringLiteral("a\nb \u00e9"), QClipboard::Selection);
    EXPECT_TRUE(selection_inquire());
    EXPECT_EQ(selection_ask(), "a\nb \xC3\xA9");
    QApplication::clipboard()->clear(QClipboard::Selection);
    EXPECT_FALSE(selection_inquire());
    EXPECT_EQ(selection_ask(), std::nullopt);
}

}  // namespace
