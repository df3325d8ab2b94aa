// SPDX-License-Identifier: MIT
#include "toolkit/pane/pointer.h"

#include "toolkit/pane/address.h"
#include "toolkit/pane/keys.h"
#include "toolkit/pane/link.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

using terminal::LinkId;
using terminal::Modifiers;
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

Pointer::Pointer(QWidget& widget, TerminalSession& session, Viewport& viewport, TerminalSelection& selection,
                 Actions actions)
    : widget_(widget),
      session_(session),
      viewport_(viewport),
      selection_(selection),
      actions_(std::move(actions)) {
    drag_timer_.setInterval(drag_scroll_milliseconds);
    QObject::connect(&drag_timer_, &QTimer::timeout, [this] { scroll_while_dragging(); });
}

// Reports to the program.

bool Pointer::is_the_programs(Modifiers modifiers) const {
    return session_.terminal().modes().mouse_tracking != terminal::MouseTracking::off && !modifiers.shift;
}

bool Pointer::report(MouseAction action, MouseButton button, QPointF point, Modifiers modifiers) {
    Position place = viewport_.position_at(point);
    place.row -= viewport_.top_row();
    const terminal::Modes& modes = session_.terminal().modes();
    if (modes.mouse_encoding == terminal::MouseEncoding::sgr_pixels) {
        const QPoint pixel = point.toPoint() - viewport_.cell_area({viewport_.top_row(), 0}).topLeft();
        place = {std::max(pixel.y(), 0), std::max(pixel.x(), 0)};
    }
    if (action == MouseAction::motion && place == last_report_) {
        return true;
    }
    last_report_ = place;
    const std::optional<std::string> text =
        encode_mouse(action, button, modifiers, place.column, static_cast<int>(place.row), modes);
    if (text) {
        session_.type(*text);
    }
    return text.has_value();
}

void Pointer::press(const QMouseEvent& event) {
    const QPointF point = event.position();
    const Modifiers modifiers = to_modifiers(event.modifiers());
    const MouseButton button = to_mouse_button(event.button());
    if (button != MouseButton::none && is_the_programs(modifiers)) {
        held_ = button;
        report(MouseAction::press, button, point, modifiers);
        return;
    }
    if (event.button() == Qt::MiddleButton) {
        return actions_.paste();
    }
    if (event.button() != Qt::LeftButton) {
        return;
    }
    pressed_link_ = modifiers.control ? link_at(point) : std::string();
    if (pressed_link_.empty()) {
        const bool third =
            since_double_click_.isValid() &&
            !since_double_click_.hasExpired(QApplication::doubleClickInterval()) &&
            (point - double_click_point_).manhattanLength() < QApplication::startDragDistance();
        since_double_click_.invalidate();
        begin_selection(point, third ? SelectionUnit::line : SelectionUnit::character, modifiers);
    }
}

void Pointer::press_again(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || is_the_programs(to_modifiers(event.modifiers()))) {
        return press(event);
    }
    since_double_click_.start();
    double_click_point_ = event.position();
    begin_selection(event.position(), SelectionUnit::word, {});
}

void Pointer::move(const QMouseEvent& event) {
    const Modifiers modifiers = to_modifiers(event.modifiers());
    move_to(event.position(), modifiers);
    if (selecting_) {
        drag_point_ = event.position();
        extend_selection(event.position());
        const bool outside = !widget_.rect().contains(event.position().toPoint());
        if (outside && !drag_timer_.isActive()) {
            drag_timer_.start();
        } else if (!outside) {
            drag_timer_.stop();
        }
    } else if (is_the_programs(modifiers)) {
        report(MouseAction::motion, held_, event.position(), modifiers);
    }
}

void Pointer::release(const QMouseEvent& event) {
    const MouseButton button = to_mouse_button(event.button());
    if (held_ != MouseButton::none && button == held_) {
        held_ = MouseButton::none;
        report(MouseAction::release, button, event.position(), to_modifiers(event.modifiers()));
    } else if (event.button() == Qt::LeftButton && selecting_) {
        stop_selecting();
        actions_.selected();
    } else if (event.button() == Qt::LeftButton) {
        open_link_at(event.position());
    }
}

// Selecting.

void Pointer::begin_selection(QPointF point, SelectionUnit unit, Modifiers modifiers) {
    const bool by_characters = unit == SelectionUnit::character;
    selecting_ = true;
    drag_point_ = point;
    if (by_characters && modifiers.alt) {
        unit = SelectionUnit::block;
    } else if (by_characters && modifiers.shift && selection_.begun()) {
        return extend_selection(point);
    }
    selection_.begin(by_characters ? viewport_.boundary_at(point) : viewport_.position_at(point), unit);
    actions_.changed();
}

void Pointer::stop_selecting() {
    selecting_ = false;
    drag_timer_.stop();
}

void Pointer::extend_selection(QPointF point) {
    const SelectionUnit unit = selection_.unit();
    const bool by_characters = unit == SelectionUnit::character || unit == SelectionUnit::block;
    selection_.extend(by_characters ? viewport_.boundary_at(point) : viewport_.position_at(point));
    actions_.changed();
}

void Pointer::scroll_while_dragging() {
    const qreal above = -drag_point_.y();
    const qreal below = drag_point_.y() - widget_.height();
    const qreal distance = std::max(above, below);
    if (distance > 0) {
        const int lines = 1 + static_cast<int>(distance) / viewport_.cell().height();
        viewport_.scroll_lines(above > 0 ? -lines : lines);
        extend_selection(drag_point_);
    }
}

// The wheel.

void Pointer::turn_wheel(const QWheelEvent& event) {
    wheel_remainder_ += event.angleDelta().y();
    const int notches = wheel_remainder_ / wheel_notch;  // positive ones are away from the user: up
    wheel_remainder_ -= notches * wheel_notch;
    const int lines = notches * QApplication::wheelScrollLines();
    const Modifiers modifiers = to_modifiers(event.modifiers());
    const terminal::Modes& modes = session_.terminal().modes();
    if (is_the_programs(modifiers)) {
        const MouseButton button = notches > 0 ? MouseButton::wheel_up : MouseButton::wheel_down;
        for (int notch = 0; notch < std::abs(notches); ++notch) {
            report(MouseAction::press, button, event.position(), modifiers);
        }
    } else if (modes.alternate_screen && modes.alternate_scroll) {
        const terminal::Key key = lines > 0 ? terminal::Key::up : terminal::Key::down;
        for (int line = 0; line < std::abs(lines); ++line) {
            session_.type(encode_key(key, {}, {}, modes));
        }
    } else {
        viewport_.scroll_lines(-lines);
        actions_.changed();
    }
}

// Links.

std::optional<Position> Pointer::text_at(QPointF point) const {
    const Position place = viewport_.position_at(point);
    const bool beside = !viewport_.cell_area(place).contains(point.toPoint());
    return beside ? std::nullopt : std::optional(place);
}

LinkId Pointer::link_id_at(QPointF point) const {
    const std::optional<Position> place = text_at(point);
    if (!place) {
        return 0;
    }
    const std::span<const terminal::Cell> cells = session_.terminal().row(place->row).cells;
    const auto column = static_cast<std::size_t>(place->column);
    return column < cells.size() ? cells[column].link : LinkId{0};
}

std::string Pointer::link_at(QPointF point) const {
    if (const LinkId link = link_id_at(point); link != 0) {
        return std::string(session_.terminal().link(link));
    }
    const std::optional<Position> place = text_at(point);
    return place ? address_at(session_.terminal(), *place).text : std::string();
}

void Pointer::follow_text() {
    const LinkId found = place_ ? link_id_at(*place_) : LinkId{0};
    const std::optional<Position> place = place_ && found == 0 ? text_at(*place_) : std::nullopt;
    const terminal::Range address = place ? address_at(session_.terminal(), *place).range : terminal::Range{};
    if (found != hovered_link_ || address != hovered_address_) {
        hovered_link_ = found;
        hovered_address_ = address;
        actions_.changed();
    }
    const bool opens = (found != 0 || !address.empty()) && modifiers_.control && !is_the_programs(modifiers_);
    const Qt::CursorShape shape = opens ? Qt::PointingHandCursor : Qt::IBeamCursor;
    if (widget_.cursor().shape() != shape) {
        widget_.setCursor(shape);
    }
}

void Pointer::move_to(std::optional<QPointF> point, Modifiers modifiers) {
    place_ = point;
    modifiers_ = modifiers;
    follow_text();
}

void Pointer::control_key(bool down) {
    modifiers_.control = down;
    follow_text();
}

LinkId Pointer::hovered_link_in(const terminal::Row& row) const {
    const bool holds = hovered_link_ != 0 &&
                       std::any_of(row.cells.begin(), row.cells.end(),
                                   [this](const terminal::Cell& cell) { return cell.link == hovered_link_; });
    return holds ? hovered_link_ : LinkId{0};
}

Columns Pointer::hovered_address_in(terminal::RowId row) const {
    const terminal::Range& range = hovered_address_;
    if (range.empty() || row < range.begin.row || row > range.end.row) {
        return {};
    }
    return {row == range.begin.row ? range.begin.column : 0,
            row == range.end.row ? range.end.column : session_.terminal().size().columns};
}

/// As with a button, the release counts, and only on the same link.
void Pointer::open_link_at(QPointF point) {
    const std::string pressed = std::exchange(pressed_link_, {});
    if (!pressed.empty() && link_at(point) == pressed) {
        offer_link(&widget_, pressed);
    }
}
