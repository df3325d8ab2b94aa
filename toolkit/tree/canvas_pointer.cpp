// SPDX-License-Identifier: MIT
// What the mouse does on the canvas.
#include "toolkit/tree/canvas_widget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

bool adds(Qt::KeyboardModifiers modifiers) {
    return (modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
}

}  // namespace

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        press_left(*event);
    } else if (event->button() == Qt::MiddleButton) {
        pan_ = Pan{event->position().toPoint(), view_origin()};
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
}

/// Qt calls a second press so wherever the first one was; here it counts on which nodes they were.
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void CanvasWidget::press_left(const QMouseEvent& event) {
    const QPoint place = event.position().toPoint();
    TreeNode* node = node_at(place);
    const LastClick before = std::exchange(last_click_, {});
    if (node == nullptr) {
        band_ = Band{in_tree(place), in_tree(place)};
        if (!adds(event.modifiers()) && clear_selection()) {
            tell_selection();
        }
        return;
    }
    const auto interval = static_cast<ulong>(QApplication::doubleClickInterval());
    if (node == before.node && event.timestamp() - before.time <= interval) {
        tell(procedures_.double_click);
        return;
    }
    last_click_ = {node, static_cast<ulong>(event.timestamp())};
    click(node, event.modifiers());
}

void CanvasWidget::click(TreeNode* node, Qt::KeyboardModifiers modifiers) {
    if (!adds(modifiers)) {
        press(node);
        return;
    }
    set_current(node);
    toggle(node);
    tell_selection(procedures_.click);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (pan_) {
        drag_pan(place);
    } else if (band_) {
        drag_band(place);
    }
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && pan_) {
        pan_.reset();
        viewport()->unsetCursor();
    } else if (event->button() == Qt::LeftButton && band_) {
        end_band();
    }
}

void CanvasWidget::drag_pan(QPoint in_view) {
    const QPoint start = pan_->start - (in_view - pan_->from);
    horizontalScrollBar()->setValue(qRound(double(start.x()) / pixels_per_unit));
    verticalScrollBar()->setValue(qRound(double(start.y()) / pixels_per_unit));
}

void CanvasWidget::drag_band(QPoint in_view) {
    constexpr int scrolling_interval = 50;  // milliseconds
    band_->to = in_tree(in_view);
    band_->dragged =
        band_->dragged || (band_->to - band_->from).manhattanLength() >= QApplication::startDragDistance();
    if (viewport()->rect().contains(in_view)) {
        band_scrolling_.stop();
    } else if (!band_scrolling_.isActive()) {
        band_scrolling_.start(scrolling_interval, this);
    }
    viewport()->update();
}

/// The view follows a band that is drawn beyond its edge, the faster the farther it is.
void CanvasWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != band_scrolling_.timerId() || !band_) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const QPoint pointer = viewport()->mapFromGlobal(QCursor::pos());
    const QPoint beyond = pointer - QPoint(std::clamp(pointer.x(), 0, viewport()->width()),
                                           std::clamp(pointer.y(), 0, viewport()->height()));
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + beyond.x() / pixels_per_unit);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + beyond.y() / pixels_per_unit);
    drag_band(pointer);
}

void CanvasWidget::end_band() {
    band_scrolling_.stop();
    const Band band = *std::exchange(band_, std::nullopt);
    viewport()->update();
    if (!band.dragged) {
        return;
    }
    const QRect area = band.area();
    bool changes = false;
    hold();
    for (TreeNode* node : tree_.touched_by({area.x(), area.y(), area.width(), area.height()})) {
        changes = select(node) || changes;
    }
    release();
    if (changes) {
        tell_selection();
    }
}

void CanvasWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        return;  // the menu key comes as a key, too
    }
    TreeNode* node = node_at(event->pos());
    const QPoint place = event->globalPos();
    if (node != nullptr) {
        set_current(node);
    }
    if (node != nullptr && !node->selected) {
        select_alone(node);
        tell_selection();
    }
    menu_.widget()->popup(place);
}

void CanvasWidget::open_menu_at_current() {
    QPoint place;
    if (current_ != nullptr) {
        go_to(current_);
        place = area(current_).bottomLeft() - view_origin();
    }
    menu_.widget()->popup(viewport()->mapToGlobal(place));
}

void CanvasWidget::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ShiftModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    QWheelEvent sideways(event->position(), event->globalPosition(), event->pixelDelta().transposed(),
                         event->angleDelta().transposed(), event->buttons(),
                         event->modifiers() & ~Qt::ShiftModifier, event->phase(), event->inverted());
    QApplication::sendEvent(horizontalScrollBar(), &sideways);
    event->accept();
}
