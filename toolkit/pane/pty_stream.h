// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"
#include "toolkit/pane/pty_reader.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Moves bytes between a program on a pty and its terminal: what the program writes in bounded slices of the
/// event loop's time, so that keys and painting get their turn; what it is to read as fast as it takes it.
class PtyStream final : public QObject {
  public:
    /// What it tells its owner, from the event loop or from `await_echo`.
    struct Events {
        /// Some of what the program has written; returns how many bytes of it were taken, at least one.
        std::function<std::size_t(std::string_view)> output;
        std::function<void()> slice_read;       ///< the output of a slice has been given
        std::function<void()> hung_up;          ///< nobody holds the terminal open just now
        std::function<void()> last_words_read;  ///< of a program that has ended
    };

    PtyStream(std::unique_ptr<terminal::Pty> pty, Events events);

    [[nodiscard]] terminal::Pty& pty() { return *pty_; }
    /// Closes the pty and tells nothing more. Nothing but destroying it may follow, and not from an event.
    void close();

    /// Queues bytes for the program, in order and without loss.
    void write(std::string_view bytes);
    /// The same for keys, which the program is expected to answer.
    void type(std::string_view bytes);
    /// The same for the terminal's own answers, which keys may overtake: a program that asks and asks gets
    /// some 256 KB of them a second, and they are dropped where it does not read them.
    void reply(std::string_view bytes);

    /// Reads what the program has written, and what it is about to echo of the last key typed. Waits at most
    /// some milliseconds, and only when nothing has been read since that key.
    void await_echo();
    /// The program has not answered the last key yet.
    [[nodiscard]] bool echo_is_due() const { return echo_due_; }
    /// Goes on with the last words of a program that has ended, and then tells so. Jobs it left behind must
    /// not keep us here.
    void read_last_words();

  private:
    void read_slice();
    [[nodiscard]] std::size_t read_pieces();
    void end_slice();
    void write_pending();
    void write_replies();
    void pass_time_for_replies();
    void watch_for_room();

    std::unique_ptr<terminal::Pty> pty_;
    std::unique_ptr<PtyReader> reader_;
    Events events_;
    QSocketNotifier readable_;
    QSocketNotifier writable_;
    std::optional<std::size_t> last_words_;  ///< of a program that has ended: so much was read
    QElapsedTimer since_key_;
    std::deque<std::string> replies_;  ///< not written yet
    std::size_t unread_replies_ = 0;   ///< their bytes
    std::size_t replies_allowed_;      ///< bytes of them that may be written now
    QTimer reply_timer_;               ///< until more may be
    bool echo_due_ = false;            ///< a key was typed and nothing has been read since
};
