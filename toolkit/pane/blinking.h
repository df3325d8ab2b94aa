// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

/// What moves by itself in a terminal view: the cursor and text that blink, and the bell's flash.
class Blinking {
  public:
    /// What is to be painted anew; called from the event loop.
    struct Events {
        std::function<void()> cursor;
        std::function<void()> text;  ///< text that blinks is due: `turn_text` or `rest_text` answers
        std::function<void()> flash;
    };

    explicit Blinking(Events events);

    /// A cursor that moves is seen: it blinks from there on, for a while.
    void follow_cursor(const terminal::Cursor& cursor, bool focused);
    void restart_cursor(const terminal::Cursor& cursor, bool focused);
    [[nodiscard]] bool cursor_hidden() const { return cursor_hidden_; }

    /// Text that blinks was painted.
    void await_text();
    void turn_text() { text_hidden_ = !text_hidden_; }
    /// None is in view any more.
    void rest_text();
    [[nodiscard]] bool text_hidden() const { return text_hidden_; }

    void flash();
    [[nodiscard]] bool flashes() const { return flash_timer_.isActive(); }

  private:
    void turn_cursor();

    Events events_;
    QTimer cursor_timer_;
    QTimer text_timer_;
    QTimer flash_timer_;
    QElapsedTimer since_cursor_moved_;
    terminal::Position cursor_place_;  ///< as last seen, and whether it blinked
    bool cursor_blinks_ = false;
    bool cursor_hidden_ = false;
    bool text_hidden_ = false;
};
