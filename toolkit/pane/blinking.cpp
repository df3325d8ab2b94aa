// SPDX-License-Identifier: MIT
#include "toolkit/pane/blinking.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

constexpr int cursor_limit_milliseconds = 10'000;
constexpr int text_milliseconds = 600;
constexpr int flash_milliseconds = 120;

}  // namespace

Blinking::Blinking(Events events) : events_(std::move(events)) {
    text_timer_.setInterval(text_milliseconds);
    flash_timer_.setInterval(flash_milliseconds);
    flash_timer_.setSingleShot(true);
    QObject::connect(&cursor_timer_, &QTimer::timeout, [this] { turn_cursor(); });
    QObject::connect(&text_timer_, &QTimer::timeout, [this] { events_.text(); });
    QObject::connect(&flash_timer_, &QTimer::timeout, [this] { events_.flash(); });
}

void Blinking::follow_cursor(const terminal::Cursor& cursor, bool focused) {
    if (cursor.position != cursor_place_ || cursor.blinking != cursor_blinks_) {
        cursor_place_ = cursor.position;
        cursor_blinks_ = cursor.blinking;
        restart_cursor(cursor, focused);
    }
}

void Blinking::restart_cursor(const terminal::Cursor& cursor, bool focused) {
    if (cursor_hidden_) {
        cursor_hidden_ = false;
        events_.cursor();
    }
    cursor_timer_.stop();
    since_cursor_moved_.start();
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    if (cursor.blinking && focused && period > 0) {
        cursor_timer_.start(period / 2);
    }
}

/// Stops with the cursor in view when the terminal has been left alone.
void Blinking::turn_cursor() {
    cursor_hidden_ = !cursor_hidden_;
    if (!cursor_hidden_ && since_cursor_moved_.hasExpired(cursor_limit_milliseconds)) {
        cursor_timer_.stop();
    }
    events_.cursor();
}

void Blinking::await_text() {
    if (!text_timer_.isActive()) {
        text_timer_.start();
    }
}

void Blinking::rest_text() {
    text_hidden_ = false;
    text_timer_.stop();
}

void Blinking::flash() {
    flash_timer_.start();
    events_.flash();
}
