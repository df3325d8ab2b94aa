// SPDX-License-Identifier: MIT
#include "toolkit/pane/keys.h"
#include "toolkit/pane/view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>
#include <array>

// The terminal view's mouse: reports to a program that asked for them, else selecting and scrolling.

using terminal::MouseAction;
using terminal::MouseButton;
using terminal::Position;

namespace {

constexpr int drag_scroll_milliseconds = 40;
constexpr int wheel_notch = 120;  ///< Qt's angle delta of one

MouseButton to_mouse_button(Qt::MouseButton button) {
    switch (button) {
        case Qt::LeftButton:
            return MouseButton::left;
        case Qt::MiddleButton:
            return MouseButton::middle;
        case Qt::RightButton:
            return MouseButton::right;
        default:
            return MouseButton::none;
    }
}

}  // namespace

// Reports to the program.

bool TerminalView::program_has_mouse(Qt::KeyboardModifiers modifiers) const {
    return terminal().modes().mouse_tracking != terminal::MouseTracking::off &&
           !modifiers.testFlag(Qt::ShiftModifier);
}

bool TerminalView::report_mouse(MouseAction action, MouseButton button, QPointF point,
                                Qt::KeyboardModifiers modifiers) {
    Position place = position_at(point);
    place.row -= top_row();
    const terminal::Modes& modes = terminal().modes();
    if (modes.mouse_encoding == terminal::MouseEncoding::sgr_pixels) {
        const QPoint pixel = point.toPoint() - cell_area({top_row(), 0}).topLeft();
        place = {std::max(pixel.y(), 0), std::max(pixel.x(), 0)};
    }
    if (action == MouseAction::motion && place == mouse_.last_report) {
        return true;
    }
    mouse_.last_report = place;
    const std::optional<std::string> report = encode_mouse(action, button, to_modifiers(modifiers),
                                                           place.column, static_cast<int>(place.row), modes);
    if (report) {
        session_.type(*report);
    }
    return report.has_value();
}

void TerminalView::mousePressEvent(QMouseEvent* event) {
    const QPointF point = event->position();
    const MouseButton button = to_mouse_button(event->button());
    if (button != MouseButton::none && program_has_mouse(event->modifiers())) {
        mouse_.held = button;
        report_mouse(MouseAction::press, button, point, event->modifiers());
        return;
    }
    if (event->button() == Qt::MiddleButton) {
        paste(PasteSource::primary);
    } else if (event->button() == Qt::LeftButton && !press_link(point, event->modifiers())) {
        const bool third =
            mouse_.since_double_click.isValid() &&
            !mouse_.since_double_click.hasExpired(QApplication::doubleClickInterval()) &&
            (point - mouse_.double_click_point).manhattanLength() < QApplication::startDragDistance();
        mouse_.since_double_click.invalidate();
        begin_selection(point, third ? SelectionUnit::line : SelectionUnit::character, event->modifiers());
    }
}

void TerminalView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || program_has_mouse(event->modifiers())) {
        mousePressEvent(event);
        return;
    }
    mouse_.since_double_click.start();
    mouse_.double_click_point = event->position();
    begin_selection(event->position(), SelectionUnit::word, {});
}

void TerminalView::mouseMoveEvent(QMouseEvent* event) {
    move_pointer(event->position(), event->modifiers());
    if (mouse_.selecting) {
        mouse_.drag_point = event->position();
        extend_selection(event->position());
        const bool outside = !rect().contains(event->position().toPoint());
        if (outside && !drag_timer_.isActive()) {
            drag_timer_.start(drag_scroll_milliseconds, this);
        } else if (!outside) {
            drag_timer_.stop();
        }
    } else if (program_has_mouse(event->modifiers())) {
        report_mouse(MouseAction::motion, mouse_.held, event->position(), event->modifiers());
    }
}

void TerminalView::mouseReleaseEvent(QMouseEvent* event) {
    const MouseButton button = to_mouse_button(event->button());
    if (mouse_.held != MouseButton::none && button == mouse_.held) {
        mouse_.held = MouseButton::none;
        report_mouse(MouseAction::release, button, event->position(), event->modifiers());
    } else if (event->button() == Qt::LeftButton && mouse_.selecting) {
        mouse_.selecting = false;
        drag_timer_.stop();
        publish_selection();
    } else if (event->button() == Qt::LeftButton) {
        release_link(event->position());
    }
}

void TerminalView::contextMenuEvent(QContextMenuEvent* event) {
    const bool by_mouse = event->reason() == QContextMenuEvent::Mouse;
    if (by_mouse && !program_has_mouse(event->modifiers())) {
        show_menu_(event->globalPos());
    }
    // The menu key comes as a key.
    event->accept();
}

// Selecting.

/// The boundary between characters nearest to a point.
Position TerminalView::boundary_at(QPointF point) const {
    const Position cell = position_at(point);
    const QRect area = cell_area(cell);
    const bool behind = point.x() >= area.x() + area.width() / 2.0;
    return {cell.row, cell.column + (behind ? 1 : 0)};
}

void TerminalView::begin_selection(QPointF point, SelectionUnit unit, Qt::KeyboardModifiers modifiers) {
    const bool by_characters = unit == SelectionUnit::character;
    mouse_.selecting = true;
    mouse_.drag_point = point;
    if (by_characters && modifiers.testFlag(Qt::ShiftModifier) && !selection_.empty()) {
        extend_selection(point);
        return;
    }
    selection_.begin(by_characters ? boundary_at(point) : position_at(point), unit);
    content_changed();
}

void TerminalView::extend_selection(QPointF point) {
    selection_.extend(selection_.unit() == SelectionUnit::character ? boundary_at(point)
                                                                    : position_at(point));
    content_changed();
}

void TerminalView::scroll_while_dragging() {
    const qreal above = -mouse_.drag_point.y();
    const qreal below = mouse_.drag_point.y() - height();
    const qreal distance = std::max(above, below);
    if (distance > 0) {
        const int lines = 1 + static_cast<int>(distance) / font_->cell_height();
        scroll_lines(above > 0 ? -lines : lines);
        extend_selection(mouse_.drag_point);
    }
}

// The wheel.

void TerminalView::wheelEvent(QWheelEvent* event) {
    const QPoint delta = event->angleDelta();
    const bool sideways = std::abs(delta.x()) > std::abs(delta.y());
    if (sideways) {
        event->ignore();
        return;
    }
    mouse_.wheel_remainder += delta.y();
    const int notches = mouse_.wheel_remainder / wheel_notch;
    mouse_.wheel_remainder -= notches * wheel_notch;
    turn_wheel(notches, event->position(), event->modifiers());
    event->accept();
}

/// Positive notches are away from the user: up.
void TerminalView::turn_wheel(int notches, QPointF point, Qt::KeyboardModifiers modifiers) {
    const int lines = notches * QApplication::wheelScrollLines();
    const terminal::Modes& modes = terminal().modes();
    if (program_has_mouse(modifiers)) {
        const MouseButton button = notches > 0 ? MouseButton::wheel_up : MouseButton::wheel_down;
        for (int notch = 0; notch < std::abs(notches); ++notch) {
            report_mouse(MouseAction::press, button, point, modifiers);
        }
    } else if (modes.alternate_screen && modes.alternate_scroll) {
        const terminal::Key key = lines > 0 ? terminal::Key::up : terminal::Key::down;
        for (int line = 0; line < std::abs(lines); ++line) {
            session_.type(encode_key(key, {}, {}, modes));
        }
    } else {
        scroll_lines(-lines);
    }
}
