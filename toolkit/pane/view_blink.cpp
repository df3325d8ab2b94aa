// SPDX-License-Identifier: MIT
#include "toolkit/pane/view.h"

#include <QApplication>
#include <QTimerEvent>

#include <algorithm>

// What moves by itself in the terminal view: the cursor and text that blink, and the bell's flash. While a
// program has an update of the screen open, nothing does.

namespace {

constexpr int cursor_blink_limit_milliseconds = 10'000;
constexpr int text_blink_milliseconds = 600;
constexpr int flash_milliseconds = 120;

}  // namespace

/// A cursor that moves is seen: it blinks from there on, for a while.
void TerminalView::follow_cursor() {
    const terminal::Cursor cursor = terminal().cursor();
    if (cursor.position != cursor_place_ || cursor.blinking != cursor_blinks_) {
        cursor_place_ = cursor.position;
        cursor_blinks_ = cursor.blinking;
        restart_cursor_blinking();
    }
}

void TerminalView::restart_cursor_blinking() {
    if (cursor_hidden_) {
        cursor_hidden_ = false;
        content_changed();
    }
    cursor_timer_.stop();
    since_cursor_moved_.start();
    const int period = QApplication::cursorFlashTime();
    if (terminal().cursor().blinking && hasFocus() && period > 0) {
        cursor_timer_.start(period / 2, this);
    }
}

/// Stops with the cursor in view when the terminal has been left alone.
void TerminalView::blink_cursor() {
    cursor_hidden_ = !cursor_hidden_;
    if (!cursor_hidden_ && since_cursor_moved_.hasExpired(cursor_blink_limit_milliseconds)) {
        cursor_timer_.stop();
    }
    content_changed();
}

bool TerminalView::blinks(terminal::RowId row) const {
    const std::span<const terminal::Cell> cells = terminal().row(row).cells;
    return std::any_of(cells.begin(), cells.end(),
                       [this](const terminal::Cell& cell) { return terminal().style(cell.style).blink; });
}

void TerminalView::await_blink(bool seen) {
    if (seen && !text_blink_timer_.isActive()) {
        text_blink_timer_.start(text_blink_milliseconds, this);
    }
}

/// Goes on while a row in view has text that blinks.
void TerminalView::blink_text() {
    if (session_.update_is_open()) {
        return;
    }
    look_.blink_hidden = !look_.blink_hidden;
    bool any = false;
    for (std::size_t line = 0; line < pictures_.size(); ++line) {
        if (blinks(pictures_[line].row)) {
            any = true;
            update(row_area(static_cast<int>(line)));
        }
    }
    if (!any) {
        look_.blink_hidden = false;
        text_blink_timer_.stop();
    }
}

void TerminalView::flash() {
    flash_timer_.start(flash_milliseconds, this);
    update(flash_area());
}

/// A frame in the margin round the text, which need not be painted anew.
QRegion TerminalView::flash_area() const {
    constexpr int thickness = margin - 1;
    return QRegion(rect()) - rect().adjusted(thickness, thickness, -thickness, -thickness);
}

void TerminalView::timerEvent(QTimerEvent* event) {
    const int id = event->timerId();
    if (id == cursor_timer_.timerId()) {
        blink_cursor();
    } else if (id == text_blink_timer_.timerId()) {
        blink_text();
    } else if (id == flash_timer_.timerId()) {
        flash_timer_.stop();
        update(flash_area());
    } else if (id == drag_timer_.timerId()) {
        scroll_while_dragging();
    } else {
        QWidget::timerEvent(event);
    }
}
