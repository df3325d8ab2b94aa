// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/input.h"
#include "toolkit/pane/selection.h"
#include "toolkit/pane/session.h"
#include "toolkit/pane/viewport.h"

#include <QElapsedTimer>
#include <QPointF>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>

class QMouseEvent;
class QWheelEvent;
class QWidget;

/// The mouse over a terminal view: reports to a program that asked for them, else selecting, scrolling and
/// links (OSC 8) and plain web addresses, which are underlined under the pointer and opened with Ctrl and a
/// click.
class Pointer {
  public:
    /// What it has its view do.
    struct Actions {
        std::function<void()> changed;   ///< the picture has
        std::function<void()> selected;  ///< the user has finished a selection
        std::function<void()> paste;     ///< the primary selection
    };

    Pointer(QWidget& widget, TerminalSession& session, Viewport& viewport, TerminalSelection& selection,
            Actions actions);

    void press(const QMouseEvent& event);
    void press_again(const QMouseEvent& event);  ///< the second press of a double click
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void turn_wheel(const QWheelEvent& event);
    void leave() { move_to({}, {}); }
    void control_key(bool down);

    /// The program has asked for the mouse, and its user does not take it back with shift.
    [[nodiscard]] bool is_the_programs(terminal::Modifiers modifiers) const;
    /// A selection is being made.
    [[nodiscard]] bool selecting() const { return selecting_; }
    void stop_selecting();

    /// The address of the link, or the plain web address, at a point; empty where none is.
    [[nodiscard]] std::string link_at(QPointF point) const;
    /// The link under the pointer, which stays where it is while the text moves.
    void follow_text();
    /// That link, if a row holds some of it.
    [[nodiscard]] terminal::LinkId hovered_link_in(const terminal::Row& row) const;
    /// Where a row shows the plain web address under the pointer.
    [[nodiscard]] Columns hovered_address_in(terminal::RowId row) const;

  private:
    bool report(terminal::MouseAction action, terminal::MouseButton button, QPointF point,
                terminal::Modifiers modifiers);
    void begin_selection(QPointF point, SelectionUnit unit, terminal::Modifiers modifiers);
    void extend_selection(QPointF point);
    void scroll_while_dragging();
    /// Where a point is, unless that is beside the text.
    [[nodiscard]] std::optional<terminal::Position> text_at(QPointF point) const;
    [[nodiscard]] terminal::LinkId link_id_at(QPointF point) const;
    void move_to(std::optional<QPointF> point, terminal::Modifiers modifiers);
    void open_link_at(QPointF point);

    QWidget& widget_;
    TerminalSession& session_;
    Viewport& viewport_;
    TerminalSelection& selection_;
    Actions actions_;

    std::optional<QPointF> place_;  ///< while it is over the view
    terminal::Modifiers modifiers_;
    terminal::LinkId hovered_link_ = 0;
    terminal::Range hovered_address_;
    std::string pressed_link_;  ///< to be opened when the button is released on it
    terminal::MouseButton held_ = terminal::MouseButton::none;  ///< reported as pressed
    terminal::Position last_report_{-1, -1};
    bool selecting_ = false;
    QPointF drag_point_;
    QTimer drag_timer_;  ///< runs while a drag has left the view
    QPointF double_click_point_;
    QElapsedTimer since_double_click_;
    int wheel_remainder_ = 0;
};
