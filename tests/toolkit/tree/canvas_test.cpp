// SPDX-License-Identifier: MIT
#include "tests/toolkit/find_widget.h"
#include "toolkit/frame.h"
#include "toolkit/tree/tree_canvas.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::vector<std::string> told;  ///< what the canvas has called

void tell_click() { told.emplace_back("click"); }
void tell_double_click() { told.emplace_back("double click"); }

struct Window : CommandFrame {
    Window() : CommandFrame("Tree") {}
    TreeCanvas canvas{panel,
                      "Sample tree",
                      {.click = tell_click, .double_click = tell_double_click},
                      Menu("Options"),
                      "Nothing yet"};
};

class Canvas : public testing::Test {
  protected:
    void SetUp() override {
        told.clear();
        window.resize(600, 500);
        window.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.widget()));
        view = find_widget<QAbstractScrollArea>(window.widget(), "Sample tree");
        ASSERT_NE(view, nullptr);
    }
    TreeNode* add(TreeNode* parent, const std::string& label, NodeKind kind = NodeKind::directory) {
        return window.canvas.add(parent, std::make_unique<NodeRecord>(label), 1, kind);
    }
    [[nodiscard]] QPoint place_of(const TreeNode* node) const {
        const TreeCanvas::Area area = window.canvas.area(node);
        return QPoint(area.x + area.width / 2, area.y + area.height / 2) -
               10 * QPoint(view->horizontalScrollBar()->value(), view->verticalScrollBar()->value());
    }
    /// A click, so long after the last one.
    void click(const TreeNode* node, Qt::KeyboardModifiers modifiers = Qt::NoModifier, ulong later = 1000) {
        time += later;
        const QPointF place = place_of(node);
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, view->viewport()->mapToGlobal(place), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, modifiers);
            event.setTimestamp(time);
            QApplication::sendEvent(view->viewport(), &event);
        }
    }
    using Nodes = std::vector<TreeNode*>;

    Frame base{"Base"};
    Window window;
    QAbstractScrollArea* view = nullptr;
    ulong time = 0;
    TreeNode* root = add(nullptr, "root");
    TreeNode* one = add(root, "one", NodeKind::file);
    TreeNode* two = add(root, "two");
};

TEST_F(Canvas, AClickSelectsANodeAloneAndWithControlAddsIt) {
    click(two);
    EXPECT_EQ(rectobj_get_selected_list(window.canvas), Nodes{two});
    click(one, Qt::ControlModifier);
    EXPECT_EQ(rectobj_get_selected_list(window.canvas), (Nodes{two, one}));
    click(root);
    EXPECT_EQ(rectobj_get_selected_list(window.canvas), Nodes{root});
    EXPECT_EQ(told, (std::vector<std::string>{"click", "click", "click"}));
    told.clear();
    click(root);
    click(root, {}, 100);
    EXPECT_EQ(told, (std::vector<std::string>{"click", "double click"}));
    window.canvas.destroy(root);
    EXPECT_TRUE(rectobj_get_selected_list(window.canvas).empty());
    EXPECT_EQ(window.canvas.current(), nullptr);
}

}  // namespace
