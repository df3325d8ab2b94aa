// SPDX-License-Identifier: MIT
#pragma once

#include "tests/toolkit/find_widget.h"
#include "toolkit/frame.h"
#include "toolkit/tree/tree_canvas.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// What a canvas has called, in order.
inline std::vector<std::string> told;

struct SampleRecord : NodeRecord {
    SampleRecord(const std::string& shown, std::string kept) : NodeRecord(shown), path(std::move(kept)) {}
    [[nodiscard]] std::vector<std::string> tool_tip() const override { return {path + " (tip)"}; }
    [[nodiscard]] std::string description() const override { return path; }

    std::string path;
};

inline void tell_click() { told.emplace_back("click"); }
inline void tell_double_click() { told.emplace_back("double click"); }
inline void tell_selection() { told.emplace_back("selection"); }
inline void tell_refresh() { told.emplace_back("refresh"); }
inline void tell_rename() { told.emplace_back("rename"); }
inline void tell_remove() { told.emplace_back("remove"); }
inline void tell_first() { told.emplace_back("first"); }
inline void resize_sample(TreeCanvas& canvas, int width, int height) { canvas.set_size(width, height); }
inline constexpr MenuItem sample_items[] = {{"First", tell_first}};

struct SampleWindow : CommandFrame {
    SampleWindow() : CommandFrame("Tree") {}
    TreeCanvas canvas{panel,
                      "Sample tree",
                      {.click = tell_click,
                       .double_click = tell_double_click,
                       .selection = tell_selection,
                       .refresh = tell_refresh,
                       .rename = tell_rename,
                       .remove = tell_remove,
                       .resize = resize_sample},
                      Menu("Options", sample_items),
                      "Nothing yet"};
};

/// A window with a canvas of a few nodes:
///
///     root - one
///            two - deep
///            three
///     other
class CanvasTest : public testing::Test {
  protected:
    using Nodes = std::vector<TreeNode*>;
    using Told = std::vector<std::string>;

    void SetUp() override {
        window.resize(600, 500);
        window.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.widget()));
        view = find_widget<QAbstractScrollArea>(window.widget(), "Sample tree");
        ASSERT_NE(view, nullptr);
        window.canvas.set_focus();
        told.clear();
    }

    TreeNode* add(TreeNode* parent, const std::string& label, NodeKind kind = NodeKind::file,
                  int position = TreeCanvas::at_end) {
        return canvas.add(parent, std::make_unique<SampleRecord>(label, "/" + label), 1, kind, position);
    }
    /// The middle of a label, in the view.
    [[nodiscard]] QPoint place_of(const TreeNode* node) const {
        const TreeArea area = canvas.area(node);
        return QPoint(area.x + area.width / 2, area.y + area.height / 2) -
               10 * QPoint(canvas.horizontal().view_start, canvas.vertical().view_start);
    }
    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers = {}) {
        QMouseEvent event(type, place, view->viewport()->mapToGlobal(place), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, modifiers);
        event.setTimestamp(time);
        QApplication::sendEvent(view->viewport(), &event);
    }
    /// A click, so long after the last one.
    void click(QPoint place, Qt::KeyboardModifiers modifiers = {}, ulong later = 1000) {
        time += later;
        mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, modifiers);
        mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton, modifiers);
    }
    void click(const TreeNode* node, Qt::KeyboardModifiers modifiers = {}, ulong later = 1000) {
        click(place_of(node), modifiers, later);
    }
    void drag(Qt::MouseButton button, QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        mouse(QEvent::MouseButtonPress, from, button, modifiers);
        mouse(QEvent::MouseMove, to, button, modifiers);
        mouse(QEvent::MouseButtonRelease, to, button, modifiers);
    }
    void key(int code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(view, static_cast<Qt::Key>(code), modifiers);
    }
    [[nodiscard]] Nodes selected() const { return rectobj_get_selected_list(canvas); }
    /// What has been called since the last time this was asked.
    static Told newly_told() { return std::exchange(told, {}); }

    Frame base{"Base"};
    SampleWindow window;
    TreeCanvas& canvas = window.canvas;
    QAbstractScrollArea* view = nullptr;
    ulong time = 0;
    TreeNode* root = add(nullptr, "root", NodeKind::directory);
    TreeNode* one = add(root, "one");
    TreeNode* two = add(root, "two", NodeKind::directory);
    TreeNode* three = add(root, "three");
    TreeNode* deep = add(two, "deep");
    TreeNode* other = add(nullptr, "other", NodeKind::directory);
};
