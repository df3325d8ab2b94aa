// SPDX-License-Identifier: MIT
#include "tests/toolkit/pane/fixture.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDialog>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>

#include <algorithm>

namespace {

class TerminalMouseTest : public TerminalFixture {
  protected:
    /// The mouse moves, or is pressed a second time, with its left button held.
    void send(QEvent::Type type, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        QMouseEvent event(type, to, view().mapToGlobal(to), Qt::LeftButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(&view(), &event);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(&view(), Qt::LeftButton, modifiers, from);
        send(QEvent::MouseMove, to, modifiers);
        QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, to);
    }
    void click(QPoint place, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&view(), Qt::LeftButton, modifiers, place);
    }
    void click_twice(QPoint place) {
        click(place);
        QTest::mouseDClick(&view(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(&view(), Qt::LeftButton, {}, place);
    }
    void turn_wheel(int notches) {
        const QPoint place = cell(3, 3);
        QWheelEvent event(place, view().mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view(), &event);
    }
    /// A cell's left edge.
    [[nodiscard]] QPoint edge(int column, int line) const {
        return view().cell_area({view().position_at({0, 0}).row + line, column}).topLeft() + QPoint(0, 4);
    }
    [[nodiscard]] std::string selected() const { return view().selection().text(); }

    static QDialog* review() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    static void click_button(const QString& name) {
        const QList<QPushButton*> buttons = review()->findChildren<QPushButton*>();
        const auto button = std::find_if(buttons.begin(), buttons.end(),
                                         [&](const QPushButton* each) { return each->text() == name; });
        ASSERT_NE(button, buttons.end());
        QTest::mouseClick(*button, Qt::LeftButton);
    }
    void paste_by_keys() const { press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] bool asks_before_paste() const {
        paste_by_keys();
        return wait([] { return review() != nullptr; });
    }
};

TEST_F(TerminalMouseTest, DragSelectsCharactersIntoThePrimarySelection) {
    show_text("one two\nthree four\n");
    drag(edge(4, 0) - QPoint(2, 0), edge(5, 1));  // the nearest boundaries count
    EXPECT_EQ(selected(), "two\nthree");
    EXPECT_EQ(primary(), "two\nthree");
    drag(edge(3, 1), edge(1, 0));
    EXPECT_EQ(primary(), "ne two\nthr") << "backwards";
    click(cell(3, 0));
    EXPECT_EQ(selected(), "") << "a click takes the mark away";
    drag(edge(4, 0), edge(6, 0));
    click(edge(5, 1), Qt::ShiftModifier);
    EXPECT_EQ(primary(), "two\nthree") << "extended";
}

TEST_F(TerminalMouseTest, ShiftAndAClickSelectFromTheClickBefore) {
    show_text("one two\nthree four\n");
    click(edge(4, 0));
    click(edge(5, 1), Qt::ShiftModifier);
    EXPECT_EQ(primary(), "two\nthree");
    click(edge(3, 0), Qt::ShiftModifier);
    EXPECT_EQ(primary(), " ") << "the end that is not the start is moved";
}

TEST_F(TerminalMouseTest, AltAndADragSelectABlockOfColumns) {
    show_text("abcdef\nab\n\nabcdef  x\n");
    QTest::mousePress(&view(), Qt::LeftButton, Qt::AltModifier, edge(4, 3));
    send(QEvent::MouseMove, edge(1, 0));
    QTest::mouseRelease(&view(), Qt::LeftButton, Qt::AltModifier, edge(1, 0));
    EXPECT_EQ(primary(), "bcd\nb\n\nbcd");
    const terminal::RowId top = view().position_at({0, 0}).row;
    EXPECT_EQ(view().selection().columns_in(top + 2), (Columns{1, 4}));
    EXPECT_EQ(view().selection().columns_in(top + 4), Columns{});
    show_text("\033[1;6HX");
    EXPECT_FALSE(view().selection().empty()) << "beside the block";
    show_text("\033[2;2HX");
    EXPECT_TRUE(wait([this] { return view().selection().empty(); }));
}

TEST_F(TerminalMouseTest, TwoClicksSelectAWordAndThreeALine) {
    const std::string longer(static_cast<std::size_t>(pane.columns()) + 10, 'x');
    show_text("ls /usr/bin; echo\n" + longer + "\nlast\n");
    click_twice(cell(5, 0));
    EXPECT_EQ(primary(), "/usr/bin");
    click(cell(5, 0));
    EXPECT_EQ(primary(), "ls /usr/bin; echo");
    QTest::qWait(QApplication::doubleClickInterval() + 10);
    click_twice(cell(5, 1));
    click(cell(5, 1));
    EXPECT_EQ(primary(), longer) << "a wrapped line is one line";
}

TEST_F(TerminalMouseTest, DragAfterTwoClicksExtendsByWords) {
    show_text("one two three\n");
    send(QEvent::MouseButtonDblClick, cell(5, 0));
    send(QEvent::MouseMove, cell(10, 0));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, cell(10, 0));
    EXPECT_EQ(primary(), "two three");
}

TEST_F(TerminalMouseTest, DragBelowTheEdgeScrolls) {
    start("seq 1 300; exec cat");
    ASSERT_TRUE(wait_for_text("300"));
    paint();
    press(Qt::Key_Home, Qt::ShiftModifier);
    const QPoint below(cell(1, 0).x(), view().height() + 60);
    QTest::mousePress(&view(), Qt::LeftButton, {}, edge(0, 0));
    send(QEvent::MouseMove, below);
    EXPECT_TRUE(wait([this] { return view().selection().range().end.row > 60; }));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, below);
    EXPECT_TRUE(primary().starts_with("1\n2\n3\n")) << primary();
}

TEST_F(TerminalMouseTest, SelectionFollowsItsTextAndGoesWhenThatChanges) {
    show_text("keep me\n");
    drag(edge(0, 0), edge(4, 0));
    show_text(std::string(200, '\n'));
    EXPECT_EQ(selected(), "keep");
    show_text("\033[Hchange");
    drag(edge(0, 0), edge(6, 0));
    ASSERT_EQ(selected(), "change");
    show_text("\033[Hchange\033[2;1Helsewhere");
    EXPECT_EQ(selected(), "change") << "written anew as it was";
    show_text("\033[1;3HX");
    EXPECT_TRUE(wait([this] { return view().selection().empty(); }));
    EXPECT_FALSE(selection_inquire()) << "what is not marked any more is nobody's selection";
    drag(edge(0, 1), edge(4, 1));
    ASSERT_EQ(selected(), "else");
    QTest::mouseClick(&view(), Qt::LeftButton, {}, cell(0, 2));
    EXPECT_EQ(selected(), "");
    EXPECT_FALSE(selection_inquire()) << "a click has taken it back";
    drag(edge(0, 1), edge(4, 1));
    QGuiApplication::clipboard()->setText("theirs", QClipboard::Selection);
    EXPECT_EQ(selected(), "") << "another one has the selection";
    QTest::mouseClick(&view(), Qt::LeftButton, {}, cell(0, 2));
    EXPECT_EQ(primary(), "theirs");
}

TEST_F(TerminalMouseTest, SelectionKeepsItsTextWhenTheWindowIsResized) {
    show_text("a first line that will be wrapped by a narrow window, then: target\n");
    drag(edge(60, 0), edge(66, 0));
    ASSERT_EQ(selected(), "target");
    window.resize(300, 300);
    ASSERT_TRUE(wait([this] { return pane.columns() < 50; }));
    EXPECT_EQ(selected(), "target");
}

TEST_F(TerminalMouseTest, MiddleClickPastesThePrimarySelectionAndKeysTheClipboard) {
    start_echo();
    click_twice(cell(1, 0));
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(QClipboard::Clipboard), "ready");
    QGuiApplication::clipboard()->setText("plain text, ", QClipboard::Selection);
    QTest::mouseClick(&view(), Qt::MiddleButton, {}, cell(0, 0));
    paste_by_keys();
    EXPECT_TRUE(wait_for_echo("plain text, ready")) << echoed();
}

TEST_F(TerminalMouseTest, PasteWithControlCharactersIsShownFirst) {
    start_echo();
    set_clipboard("a\003b\033[201~\nc\u202e");
    ASSERT_TRUE(asks_before_paste());
    EXPECT_EQ(from_qstring(review()->findChild<QPlainTextEdit*>()->toPlainText()),
              "a^Cb^[[201~\u21b5\nc<U+202E>");
    QTest::keyClick(review(), Qt::Key_Escape);
    ASSERT_TRUE(wait([] { return review() == nullptr; }));

    ASSERT_TRUE(asks_before_paste());
    click_button("Cancel");
    ASSERT_TRUE(wait([] { return review() == nullptr; }));

    ASSERT_TRUE(asks_before_paste());
    click_button("Paste");
    EXPECT_TRUE(wait_for_echo("a b^McM-bM-^@M-."))
        << echoed() << ": pasted once, and nothing of what was cancelled";
}

TEST_F(TerminalMouseTest, HugePasteIsShownInPartAndSentWhole) {
    start("stty raw -echo; echo ready; head -c 2000000 | sha1sum");
    ASSERT_TRUE(wait_for_text("ready"));
    QByteArray pasted;
    for (int line = 0; pasted.size() < 2'000'000; ++line) {
        pasted += QByteArray::number(line) + '\n';
    }
    pasted.truncate(2'000'000);
    set_clipboard(pasted.toStdString());
    ASSERT_TRUE(asks_before_paste());
    EXPECT_LT(review()->findChild<QPlainTextEdit*>()->toPlainText().size(), 40'000);
    click_button("Paste");
    const QByteArray sent = pasted.replace('\n', '\r');
    EXPECT_TRUE(wait_for_text(QCryptographicHash::hash(sent, QCryptographicHash::Sha1).toHex().toStdString()))
        << text();
}

TEST_F(TerminalMouseTest, ProgramThatTracksTheMouseGetsItUnlessShiftIsHeld) {
    start_echo();
    show_text("\033[?1002h\033[?1006h");
    click(cell(2, 1));
    EXPECT_TRUE(wait_for_echo("^[[<0;3;2M^[[<0;3;2m")) << echoed();
    drag(edge(0, 0), edge(5, 0), Qt::ShiftModifier);
    EXPECT_EQ(primary(), "ready");
    turn_wheel(1);
    EXPECT_TRUE(wait_for_echo("^[[<0;3;2M^[[<0;3;2m^[[<64;4;4M")) << echoed();
}

TEST_F(TerminalMouseTest, WheelScrollsOrSendsArrowsOnTheAlternateScreen) {
    start("seq 1 300; stty raw -echo; echo ready; exec cat -v");
    ASSERT_TRUE(wait_for_text("ready"));
    paint();
    turn_wheel(2);
    EXPECT_EQ(view().position_at({0, 0}).row,
              view().terminal().screen_top() - 2L * QApplication::wheelScrollLines());
    turn_wheel(-2);
    show_text("\033[?1049h\033[Hready\n");
    turn_wheel(-1);
    std::string arrows;
    for (int line = 0; line < QApplication::wheelScrollLines(); ++line) {
        arrows += "^[[B";
    }
    EXPECT_TRUE(wait_for_echo(arrows)) << echoed();
}

TEST_F(TerminalMouseTest, FocusIsReportedWhenAskedFor) {
    start_echo();
    show_text("\033[?1004h");
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(wait_for_echo("^[[O")) << echoed();
    window.activateWindow();
    EXPECT_TRUE(wait_for_echo("^[[O^[[I")) << echoed();
}

}  // namespace
