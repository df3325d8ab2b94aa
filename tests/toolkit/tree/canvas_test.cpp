// SPDX-License-Identifier: MIT
#include "tests/support/wait_until.h"
#include "tests/toolkit/tree/canvas_fixture.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>
#include <QWheelEvent>

namespace {

using CanvasMouse = CanvasTest;
using CanvasKeys = CanvasTest;
using CanvasNodes = CanvasTest;

/// Where there are no nodes.
constexpr QPoint nowhere(500, 400);

TEST_F(CanvasMouse, ClicksSelectInTheirOrder) {
    const struct {
        TreeNode* clicked;
        Qt::KeyboardModifiers modifiers;
        Nodes selected;
    } clicks[] = {
        {three, {}, {three}},
        {one, Qt::ControlModifier, {three, one}},
        {deep, Qt::ShiftModifier, {three, one, deep}},
        {one, Qt::ShiftModifier, {three, deep}},
        {three, Qt::ControlModifier, {deep}},
        {two, {}, {two}},
    };
    for (const auto& [clicked, modifiers, expected] : clicks) {
        click(clicked, modifiers);
        EXPECT_EQ(selected(), expected);
        EXPECT_EQ(canvas.current(), clicked);
        EXPECT_EQ(newly_told(), (Told{"selection", "click"}));
    }
    click(nowhere);
    EXPECT_EQ(selected(), Nodes{});
    EXPECT_EQ(newly_told(), Told{"selection"});
    click(nowhere);
    EXPECT_EQ(newly_told(), Told{});
}

TEST_F(CanvasMouse, ADoubleClickIsTwoClicksOnTheSameNodeInTime) {
    const auto interval = static_cast<ulong>(QApplication::doubleClickInterval());
    const Told single{"selection", "click"};
    const Told twice{"double click"};
    click(one);
    click(two, {}, interval / 2);  // another node
    click(two, {}, interval + 1);  // too late
    told.clear();
    click(two, {}, interval);
    EXPECT_EQ(newly_told(), twice);
    click(two, {}, 1);  // the third one begins anew
    EXPECT_EQ(newly_told(), single);
    click(one, Qt::ControlModifier);
    EXPECT_EQ(newly_told(), single);
    click(one, Qt::ControlModifier, interval);
    EXPECT_EQ(newly_told(), twice);
    EXPECT_EQ(selected(), (Nodes{two, one}));
    click(one);
    canvas.destroy(one);
    newly_told();
    click(add(root, "one", NodeKind::file, 0), {}, 1);  // it may have got the same address
    EXPECT_EQ(newly_told(), single);
}

TEST_F(CanvasMouse, ARubberBandSelectsWhatItTouchesFromTopToBottom) {
    const QPoint below_right = place_of(three) + QPoint(0, 4);
    const QPoint above_left = place_of(one) - QPoint(100, 20);
    drag(Qt::LeftButton, nowhere, QPoint(20, 1));
    EXPECT_EQ(selected(), (Nodes{one, root, two, deep, three, other}));
    EXPECT_EQ(newly_told(), Told{"selection"});
    drag(Qt::LeftButton, above_left, place_of(one));
    EXPECT_EQ(selected(), Nodes{one});
    const QPoint right_of_deep = place_of(deep) + QPoint(100, 0);
    drag(Qt::LeftButton, right_of_deep, place_of(deep), Qt::ControlModifier);
    EXPECT_EQ(selected(), (Nodes{one, deep}));
    told.clear();
    mouse(QEvent::MouseButtonPress, nowhere, Qt::LeftButton, Qt::ShiftModifier);
    mouse(QEvent::MouseMove, below_right, Qt::LeftButton);
    EXPECT_EQ(selected(), (Nodes{one, deep}));  // until the button is let go
    key(Qt::Key_Escape);
    mouse(QEvent::MouseButtonRelease, below_right, Qt::LeftButton);
    EXPECT_EQ(selected(), (Nodes{one, deep}));
    EXPECT_TRUE(window.shown());
    EXPECT_EQ(newly_told(), Told{});
}

TEST_F(CanvasMouse, ABandDrawnBeyondTheEdgeScrollsTheView) {
    for (int i = 0; i < 100; ++i) {
        add(root, "more");
    }
    mouse(QEvent::MouseButtonPress, QPoint(400, 400), Qt::LeftButton);
    const QPoint outside(100, view->viewport()->height() + 60);
    QCursor::setPos(view->viewport()->mapToGlobal(outside));
    mouse(QEvent::MouseMove, outside, Qt::LeftButton);
    const auto at_end = [this] {
        return canvas.vertical().view_start + canvas.vertical().view_length ==
               canvas.vertical().object_length;
    };
    EXPECT_TRUE(wait_until(at_end, patience, [] { QTest::qWait(5); }));
    mouse(QEvent::MouseButtonRelease, QPoint(100, view->viewport()->height()), Qt::LeftButton);
    EXPECT_GT(selected().size(), 70U);
}

TEST_F(CanvasMouse, TheRightButtonSelectsUnlessSelectedAndOpensTheMenu) {
    QMenu& menu = *canvas.menu().widget();
    const auto right_click = [&](const TreeNode* node) {
        const QPoint place = place_of(node);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(view->viewport(), &event);
        EXPECT_TRUE(menu.isVisible());
        menu.close();
    };
    canvas.select(one);
    canvas.select(two);
    right_click(one);
    EXPECT_EQ(selected(), (Nodes{one, two}));
    EXPECT_EQ(newly_told(), Told{});
    right_click(three);
    EXPECT_EQ(selected(), Nodes{three});
    EXPECT_EQ(canvas.current(), three);
    EXPECT_EQ(newly_told(), Told{"selection"});
}

TEST_F(CanvasMouse, TheMiddleButtonAndTheWheelScroll) {
    for (int i = 0; i < 100; ++i) {
        add(root, std::string(100, 'x'));
    }
    drag(Qt::MiddleButton, QPoint(300, 300), QPoint(236, 204));
    EXPECT_EQ(canvas.horizontal().view_start, 6);
    EXPECT_EQ(canvas.vertical().view_start, 10);
    const auto turn = [this](Qt::KeyboardModifiers modifiers) {
        const QPointF place(100, 100);
        QWheelEvent event(place, view->viewport()->mapToGlobal(place), QPoint(), QPoint(0, -120),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view->viewport(), &event);
    };
    turn(Qt::NoModifier);
    EXPECT_GT(canvas.vertical().view_start, 10);
    EXPECT_EQ(canvas.horizontal().view_start, 6);
    turn(Qt::ShiftModifier);
    EXPECT_GT(canvas.horizontal().view_start, 6);
    EXPECT_EQ(selected(), Nodes{});
}

TEST_F(CanvasMouse, TheTipIsTheRecords) {
    const QPoint place = place_of(one);
    QHelpEvent event(QEvent::ToolTip, place, view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_TRUE(QToolTip::text().contains("/one (tip)")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(CanvasKeys, MoveSelectAndAct) {
    TreeNode* tail = add(root, "Tail");
    TreeNode* below_other = add(other, "else");
    const struct {
        int code;
        TreeNode* current;
        Nodes selected;
        Told told = {};
        Qt::KeyboardModifiers modifiers = {};
    } keys[] = {
        {Qt::Key_Down, other, {}},
        {Qt::Key_Down, other, {}},
        {Qt::Key_Up, root, {}},
        {Qt::Key_Right, one, {}},
        {Qt::Key_Right, one, {}},
        {Qt::Key_Down, two, {}},
        {Qt::Key_Space, two, {two}, {"selection", "click"}},
        {Qt::Key_Right, deep, {two}},
        {Qt::Key_Space, deep, {two, deep}, {"selection", "click"}, Qt::ControlModifier},
        {Qt::Key_Return, deep, {two, deep}, {"double click"}},
        {Qt::Key_Left, two, {two, deep}},
        {Qt::Key_Space, two, {deep}, {"selection", "click"}, Qt::ControlModifier},
        {Qt::Key_Enter, two, {two}, {"selection", "double click"}},
        {Qt::Key_Home, one, {two}},
        {Qt::Key_T, two, {two}},
        {Qt::Key_H, three, {two}},  // "th"
        {Qt::Key_F5, three, {two}, {"refresh"}},
        {Qt::Key_F2, three, {two}, {"rename"}},
        {Qt::Key_Delete, three, {two}, {"remove"}},
        {Qt::Key_O, three, {two}, {}, Qt::AltModifier},
        {Qt::Key_End, tail, {two}},
        {Qt::Key_Down, below_other, {two}},  // the next in the column
        {Qt::Key_Down, below_other, {two}},
        {Qt::Key_Up, tail, {two}},
    };
    canvas.set_current(root);
    for (const auto& [code, current, expected, calls, modifiers] : keys) {
        SCOPED_TRACE(code);
        key(code, modifiers);
        EXPECT_EQ(canvas.current(), current);
        EXPECT_EQ(selected(), expected);
        EXPECT_EQ(newly_told(), calls);
    }
}

TEST_F(CanvasKeys, TheSameLetterGoesOnToTheNextAndAround) {
    TreeNode* last = add(root, "TAIL");
    canvas.set_current(one);
    for (TreeNode* expected : {two, three, last, two}) {
        key(Qt::Key_T);
        EXPECT_EQ(canvas.current(), expected);
    }
}

TEST_F(CanvasKeys, TheCurrentNodeComesIntoView) {
    for (int i = 0; i < 100; ++i) {
        add(root, "more");
    }
    canvas.set_current(one);
    key(Qt::Key_End);
    EXPECT_TRUE(view->viewport()->rect().contains(place_of(canvas.current())));
    key(Qt::Key_Home);
    EXPECT_TRUE(view->viewport()->rect().contains(place_of(one)));
}

TEST_F(CanvasKeys, TheMenuOpensAtTheCurrentNode) {
    QMenu& menu = *canvas.menu().widget();
    canvas.set_current(deep);
    const TreeArea area = canvas.area(deep);
    QWindow* handle = window.widget()->windowHandle();
    QTest::keyClick(handle, Qt::Key_Menu);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), view->viewport()->mapToGlobal(QPoint(area.x, area.y + area.height - 1)));
    menu.close();
    QTest::keyClick(handle, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(menu.isVisible());
    canvas.destroy(root);
    QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_EQ(newly_told(), Told{"first"});
}

TEST_F(CanvasNodes, StandWhereTheyArePut) {
    TreeNode* first = add(root, "first", NodeKind::file, 0);
    EXPECT_EQ(canvas.children(root), (Nodes{first, one, two, three}));
    EXPECT_EQ(canvas.position_among_siblings(two), 2);
    EXPECT_EQ(canvas.parent(deep), two);
    EXPECT_EQ(canvas.parent(root), nullptr);
    EXPECT_EQ(canvas.size(), 7);
}

TEST_F(CanvasNodes, LeaveNothingBehindWhenDestroyed) {
    for (TreeNode* node : {other, deep, three, one}) {
        canvas.select(node);
    }
    canvas.set_current(deep);
    canvas.destroy(two);
    EXPECT_EQ(selected(), (Nodes{other, three, one}));
    EXPECT_EQ(canvas.current(), root);
    canvas.destroy_children(root);
    EXPECT_EQ(selected(), Nodes{other});
    canvas.destroy(root);
    EXPECT_EQ(canvas.current(), nullptr);
    EXPECT_EQ(canvas.size(), 1);
}

TEST_F(CanvasNodes, TakeTheRoomOfTheirLabels) {
    canvas.select(one);
    EXPECT_GT(canvas.area(add(root, "a longer label")).width, canvas.area(one).width);
    EXPECT_EQ(canvas.area(deep).x, canvas.area(two).right() + 50);
    const TreeArea marked = canvas.area(two);
    canvas.set_opened(two);
    EXPECT_LT(canvas.area(two).width, marked.width);  // without the mark
    EXPECT_EQ(selected(), Nodes{one});
    for (int size = 1; size < 4; ++size) {
        const auto sized = [&](int wanted) {
            return canvas.add(nullptr, std::make_unique<NodeRecord>("size"), wanted, NodeKind::file);
        };
        EXPECT_GT(canvas.area(sized(size)).height, canvas.area(sized(size - 1)).height) << size;
    }
}

TEST_F(CanvasNodes, AreCountedInUnitsByTheScrollBars) {
    for (int more = 0; more < 10; ++more) {
        window.resize(600 + more, 500 + more);
        ASSERT_TRUE(wait_until([&] { return canvas.width() == view->viewport()->width(); }, patience,
                               [] { QTest::qWait(1); }));
        EXPECT_EQ(canvas.horizontal().object_length, canvas.horizontal().view_length) << more;
        EXPECT_EQ(canvas.vertical().object_length, canvas.vertical().view_length) << more;
    }
    canvas.set_size(1, 1);
    EXPECT_EQ(canvas.vertical().object_length, canvas.vertical().view_length);
    {
        const RepaintHold hold(canvas);
        for (int i = 0; i < 100; ++i) {
            add(root, "more");
        }
    }
    const TreeCanvas::Scrolling bar = canvas.vertical();
    EXPECT_EQ(bar.pixels_per_unit, 10);
    EXPECT_EQ(bar.view_length, view->viewport()->height() / 10);
    const int beyond = canvas.height() - view->viewport()->height();
    EXPECT_EQ(bar.object_length, bar.view_length + (beyond + 9) / 10);
    canvas.set_view_start(-1, 100'000);
    EXPECT_EQ(canvas.horizontal().view_start, 0);
    EXPECT_EQ(canvas.vertical().view_start, bar.object_length - bar.view_length);
}

}  // namespace
