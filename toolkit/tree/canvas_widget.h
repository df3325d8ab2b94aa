// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/menu.h"
#include "toolkit/tree/canvas_observer.h"
#include "toolkit/tree/label_fonts.h"
#include "toolkit/tree/node_tree.h"
#include "toolkit/tree/tree_procedures.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPoint>
#include <QRect>

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

class QHelpEvent;

/// Shows a tree of nodes and does what its user's mouse and keyboard say. Places are in pixels of the tree
/// unless they are said to be the view's.
class CanvasWidget final : public QAbstractScrollArea {
  public:
    static constexpr int pixels_per_unit = 10;  ///< of both scroll bars

    CanvasWidget(TreeCanvas& canvas, const TreeProcedures& procedures, Menu menu, std::string_view empty_text,
                 QWidget* parent);

    /// Set before there are nodes.
    void set_observer(std::unique_ptr<CanvasObserver> observer) { observer_ = std::move(observer); }
    [[nodiscard]] CanvasObserver& observer() const { return *observer_; }
    [[nodiscard]] const NodeTree& tree() const { return tree_; }
    [[nodiscard]] LabelFonts& fonts() { return fonts_; }
    [[nodiscard]] Menu& menu() { return menu_; }

    TreeNode* add(TreeNode* parent, std::unique_ptr<NodeRecord> record, int font_size, NodeKind kind,
                  int position);
    void destroy(TreeNode* node);
    void set_opened(TreeNode* node, bool opened);

    // Each tells whether it changed anything.
    bool select(TreeNode* node);
    bool deselect(TreeNode* node);
    bool clear_selection();
    [[nodiscard]] TreeNode* current() const { return current_; }
    void set_current(TreeNode* node);

    /// What Space and Return do at a node.
    void press(TreeNode* node);
    void activate(TreeNode* node);
    /// Makes a node the current one and scrolls it into view.
    void go_to(TreeNode* node);
    void open_menu_at_current();

    void set_tree_size(QSize size);
    /// Of what can be scrolled.
    [[nodiscard]] QSize object_size() const;
    [[nodiscard]] int view_units(Qt::Orientation orientation) const;
    [[nodiscard]] int object_units(Qt::Orientation orientation) const;
    void show_area(const QRect& area);
    [[nodiscard]] QRect area(const TreeNode* node) const;
    /// Null where none is.
    [[nodiscard]] TreeNode* node_at(QPoint in_view) const;
    /// What part of the tree is in view.
    [[nodiscard]] QRect visible_area() const;

    void hold();
    void release();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    /// The node of the last click, while another one would make it a double click.
    struct LastClick {
        TreeNode* node = nullptr;
        ulong time = 0;  ///< of the event, in milliseconds
    };
    /// A drag that began on the empty canvas.
    struct Band {
        QPoint from;
        QPoint to;
        bool dragged = false;  ///< far enough to be meant
        [[nodiscard]] QRect area() const { return QRect(from, to).normalized(); }
    };
    /// A drag with the middle button.
    struct Pan {
        QPoint from;   ///< in the view
        QPoint start;  ///< of the view, in pixels
    };

    void forget(TreeNode* node);
    void measure(TreeNode* node);
    void changed();
    /// To be called when something looks different.
    void settle();
    void tell_focus();
    void update_scroll_bars();
    void select_alone(TreeNode* node);
    void toggle(TreeNode* node);
    void tell(const Notify& procedure) const;
    void tell_selection(const Notify& then = nullptr) const;

    [[nodiscard]] QPoint view_origin() const;
    [[nodiscard]] QPoint in_tree(QPoint in_view) const { return in_view + view_origin(); }
    void press_left(const QMouseEvent& event);
    void click(TreeNode* node, Qt::KeyboardModifiers modifiers);
    void drag_band(QPoint in_view);
    void end_band();
    void drag_pan(QPoint in_view);
    void paint_empty_text(QPainter& painter) const;
    bool show_tool_tip(const QHelpEvent& event);

    bool press_key(const QKeyEvent& event);
    bool move_by_key(int key);
    [[nodiscard]] TreeNode* neighbour(int key) const;
    bool jump(const QString& letters);

    TreeProcedures procedures_;
    TreeCanvas& canvas_;
    Menu menu_;
    QString empty_text_;
    LabelFonts fonts_;
    NodeTree tree_;
    std::unique_ptr<CanvasObserver> observer_;
    QSize tree_size_{500, 300};
    TreeNode* current_ = nullptr;
    LastClick last_click_;
    std::optional<Band> band_;
    std::optional<Pan> pan_;
    QBasicTimer band_scrolling_;
    QString jump_letters_;
    QElapsedTimer jump_time_;
    int holds_ = 0;
    bool changed_while_held_ = false;
};
