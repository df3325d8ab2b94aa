// SPDX-License-Identifier: MIT
#include "toolkit/pane/reader.h"

#include "tests/toolkit/pane/fixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace {

class TerminalReaderTest : public TerminalFixture {
  protected:
    [[nodiscard]] std::string part(QAccessible::TextBoundaryType type, int offset) const {
        int begin = 0;
        int end = 0;
        std::string found = from_qstring(accessible().textAtOffset(offset, type, &begin, &end));
        EXPECT_EQ(found, from_qstring(accessible().text(begin, end)));
        return found;
    }
};

TEST_F(TerminalReaderTest, PaneIsATerminalByItsNameWithTextOfLogicalLines) {
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&view());
    EXPECT_EQ(interface->role(), QAccessible::Terminal);
    EXPECT_EQ(interface->text(QAccessible::Name), "terminal");
    const std::string longer(static_cast<std::size_t>(pane.columns()) * 2 + 3, 'w');
    show_text("first   \n\n" + longer + "\nwide \u4e2d\U0001f600 e\u0301\nprompt  ");
    EXPECT_EQ(text(), "first\n\n" + longer + "\nwide \u4e2d\U0001f600 e\u0301\nprompt  ");
    EXPECT_EQ(accessible().cursorPosition(), accessible().characterCount());
    show_text("\033[1;3H");
    EXPECT_EQ(text(), "first\n\n" + longer + "\nwide \u4e2d\U0001f600 e\u0301\nprompt");
    EXPECT_EQ(accessible().cursorPosition(), 2);
    show_text("\033[12;5H");
    EXPECT_TRUE(text().ends_with("\nprompt\n\n\n\n\n    ")) << text();
}

TEST_F(TerminalReaderTest, OnlyTheTerminalItselfHasTheFocus) {
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&view())->state().focused);
    const QAccessible::State round = QAccessible::queryAccessibleInterface(pane.widget())->state();
    EXPECT_FALSE(round.focused);
    EXPECT_FALSE(round.focusable);
}

TEST_F(TerminalReaderTest, ContextMenuIsAChildOfTheTerminalAndCanBeOpened) {
    QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&view());
    ASSERT_EQ(interface->childCount(), 1);
    QAccessibleInterface* const menu = interface->child(0);
    EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
    EXPECT_EQ(interface->indexOfChild(menu), 0);
    EXPECT_EQ(menu->child(0)->text(QAccessible::Name), "Copy");
    interface->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(menu->state().invisible == 0);
    view().menu().close();
}

TEST_F(TerminalReaderTest, CaretBehindAFullLineStandsBehindItsLastCharacter) {
    show_text(std::string(static_cast<std::size_t>(pane.columns()), 'x'));
    EXPECT_EQ(accessible().cursorPosition(), pane.columns());
    EXPECT_EQ(accessible().characterCount(), pane.columns());
}

TEST_F(TerminalReaderTest, ScrollbackIsPartOfTheTextAndStaysInStep) {
    std::string expected;
    for (int line = 0; line < 12'000; ++line) {
        const std::string number = "line " + std::to_string(line) + "\n";
        expected += number;
        ttysw_output(pane, number);
        if (line % 1000 == 0) {
            static_cast<void>(accessible().characterCount());  // read in between, as a screen reader does
        }
    }
    const std::string kept = text();
    EXPECT_GT(kept.size(), 10'000U * 9);
    EXPECT_TRUE(expected.ends_with(kept));
    EXPECT_TRUE(kept.starts_with("line ")) << kept.substr(0, 40);
}

TEST_F(TerminalReaderTest, AlternateScreenHasATextOfItsOwn) {
    show_text("shell\n");
    show_text("\033[?1049h\033[Hfull\nscreen");
    EXPECT_EQ(text(), "full\nscreen");
    show_text("\033[?1049l");
    EXPECT_EQ(text(), "shell\n");
}

TEST_F(TerminalReaderTest, PartsOfTheTextAreFoundAtAnOffset) {
    show_text("one two\nthree");
    const std::tuple<QAccessible::TextBoundaryType, int, const char*> cases[] = {
        {QAccessible::LineBoundary, 2, "one two\n"},    {QAccessible::LineBoundary, 9, "three"},
        {QAccessible::WordBoundary, 5, "two"},          {QAccessible::WordBoundary, 4, "two"},
        {QAccessible::CharBoundary, 7, "\n"},           {QAccessible::CharBoundary, 8, "t"},
        {QAccessible::NoBoundary, 0, "one two\nthree"},
    };
    for (const auto& [type, offset, expected] : cases) {
        EXPECT_EQ(part(type, offset), expected) << offset;
    }
    int begin = 0;
    int end = 0;
    EXPECT_EQ(accessible().textBeforeOffset(9, QAccessible::LineBoundary, &begin, &end), "one two\n");
    EXPECT_EQ(accessible().textAfterOffset(1, QAccessible::LineBoundary, &begin, &end), "three");
}

TEST_F(TerminalReaderTest, PlacesAndOffsetsAgree) {
    const std::string longer(static_cast<std::size_t>(pane.columns()) + 5, 'w');
    show_text("a\u4e2d\U0001f600b\n" + longer + "\nend");
    for (int offset = 0; offset < accessible().characterCount(); ++offset) {
        if (offset == 3) {
            continue;  // within a surrogate pair
        }
        const QRect area = accessible().characterRect(offset);
        EXPECT_EQ(accessible().offsetAtPoint(area.center()), offset);
    }
    EXPECT_EQ(accessible().offsetAtPoint({-5, -5}), -1);
}

TEST_F(TerminalReaderTest, SelectionIsGivenAndTaken) {
    show_text("one two\nthree\n");
    accessible().setSelection(0, 4, 11);
    EXPECT_EQ(primary(), "two\nthr");
    int begin = 0;
    int end = 0;
    ASSERT_EQ(accessible().selectionCount(), 1);
    accessible().selection(0, &begin, &end);
    EXPECT_EQ(begin, 4);
    EXPECT_EQ(end, 11);
    accessible().removeSelection(0);
    EXPECT_EQ(accessible().selectionCount(), 0);
}

/// What assistive tools were told, as the text they would have by now.
std::u16string heard;
int heard_caret = -1;

void hear(QAccessibleEvent* event) {
    const auto change = [](int place, const QString& removed, const QString& inserted) {
        const auto at = static_cast<std::size_t>(place);
        const auto length = static_cast<std::size_t>(removed.size());
        ASSERT_EQ(heard.substr(at, length), removed.toStdU16String());
        heard.replace(at, length, inserted.toStdU16String());
    };
    if (auto* insertion = dynamic_cast<QAccessibleTextInsertEvent*>(event)) {
        change(insertion->changePosition(), {}, insertion->textInserted());
    } else if (auto* removal = dynamic_cast<QAccessibleTextRemoveEvent*>(event)) {
        change(removal->changePosition(), removal->textRemoved(), {});
    } else if (auto* update = dynamic_cast<QAccessibleTextUpdateEvent*>(event)) {
        change(update->changePosition(), update->textRemoved(), update->textInserted());
    } else if (auto* caret = dynamic_cast<QAccessibleTextCursorEvent*>(event)) {
        heard_caret = caret->cursorPosition();
    }
}

TEST_F(TerminalReaderTest, WhatChangesIsTold) {
    QAccessible::setActive(true);
    show_text("start\n");
    ASSERT_EQ(text(), "start\n");
    heard = u"start\n";
    const auto before = QAccessible::installUpdateHandler(hear);
    const auto told = [this] {
        return wait([this] { return QString::fromStdU16String(heard).toStdString() == text(); });
    };
    for (const char* output : {"more", "\b\b\033[K\nnext"}) {
        ttysw_output(pane, output);
        EXPECT_TRUE(told()) << QString::fromStdU16String(heard).toStdString();
    }
    for (int line = 0; line < 300; ++line) {
        ttysw_output(pane, "line " + std::to_string(line) + "\n");
        if (line % 50 == 0) {
            EXPECT_TRUE(told());
        }
    }
    EXPECT_TRUE(told()) << QString::fromStdU16String(heard).toStdString();
    EXPECT_EQ(heard_caret, accessible().cursorPosition());
    QAccessible::installUpdateHandler(before);
}

class TerminalFindTest : public TerminalFixture {
  protected:
    void open_bar() {
        press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        field = window.findChild<QLineEdit*>();
        ASSERT_TRUE(field->isVisible());
        ASSERT_EQ(field->accessibleName(), "Find");
    }
    void type(const char* needle) {
        field->clear();
        QTest::keyClicks(field, QString::fromUtf8(needle));
    }
    [[nodiscard]] std::string result() const {
        return from_qstring(field->parentWidget()->findChild<QLabel*>()->text());
    }
    [[nodiscard]] int matched_column() const { return view().match().begin.column; }

    QLineEdit* field = nullptr;
};

TEST_F(TerminalFindTest, FindsTheLatestMatchAndGoesRound) {
    show_text("x one\nxx one One\nend\n");
    open_bar();
    type("one");
    EXPECT_EQ(result(), "3 of 3");
    EXPECT_EQ(matched_column(), 7);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(matched_column(), 3);
    EXPECT_EQ(result(), "2 of 3");
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(result(), "1 of 3, on from the oldest");
    EXPECT_EQ(matched_column(), 2);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(result(), "3 of 3, on from the newest");
    QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
    field->parentWidget()->findChild<QCheckBox*>()->click();
    EXPECT_EQ(result(), "1 of 2");
    show_text("\033[1;3HT");
    EXPECT_TRUE(wait([this] { return view().match().empty(); })) << "its text has changed";
    type("nowhere");
    EXPECT_EQ(result(), "Not found");
    EXPECT_TRUE(view().match().empty());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(field->isVisible());
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(TerminalFindTest, ScrollsToAMatchInTheScrollback) {
    start("echo needle here; seq 1 500; exec cat");
    ASSERT_TRUE(wait_for_text("500"));
    open_bar();
    type("needle");
    EXPECT_EQ(result(), "1 of 1");
    EXPECT_EQ(view().position_at({0, 0}).row, view().terminal().first_row());
}

}  // namespace
