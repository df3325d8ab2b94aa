// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"
#include "toolkit/pane/pty_stream.h"
#include "toolkit/pane/readiness.h"

#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The life of the program in a terminal, the user's shell: starts it, sees it become ready for commands and
/// end, and starts it anew when asked to.
class ShellLife {
  public:
    /// What it tells its owner, from the event loop.
    struct Events {
        /// Some of what the program has written; returns how many bytes of it were taken, at least one.
        std::function<std::size_t(std::string_view)> output;
        std::function<void()> slice_read;  ///< the output of a slice has been given
        std::function<void()> ready;       ///< a program that was started is ready for commands
        /// The program has ended or could not be started, as the text, for the user, says.
        std::function<void(const std::string&)> ended;
        std::function<void()> restarted;  ///< the user has started it anew
    };
    /// The size of the terminal that a program is started in.
    struct Room {
        terminal::Size size;
        int pixel_width = 0;
        int pixel_height = 0;
    };

    explicit ShellLife(Events events);

    /// Starts the program, or takes over one that was started already, and after it has ended starts it anew.
    void start(const terminal::Program& program, const Room& room, std::unique_ptr<terminal::Pty> started);
    void restart(const Room& room);
    void resize(const Room& room);

    /// Bytes for the program. After it has ended they are dropped: the announcement is still the last line to
    /// be seen, and a later shell must not run what was meant for an earlier one.
    void type(std::string_view bytes);
    /// The same for what the program need not answer.
    void report(std::string_view bytes);

    /// What moves the bytes, and the pty; nullptr while no program runs.
    [[nodiscard]] PtyStream* stream() const { return stream_.get(); }
    [[nodiscard]] const terminal::Pty* pty() const { return stream_ ? &stream_->pty() : nullptr; }
    /// The program runs and is not busy with its start-up files any more.
    [[nodiscard]] bool is_started() const { return state_ == State::running; }
    [[nodiscard]] bool has_ended() const { return state_ == State::ended; }

  private:
    enum class State : std::uint8_t { idle, starting, running, ended };

    void run(const Room& room, std::unique_ptr<terminal::Pty> pty);
    void open(std::unique_ptr<terminal::Pty> pty);
    void drop_stream();
    void watch_readiness();
    void check_for_end();
    void finish(const std::string& announcement);

    Events events_;
    std::optional<terminal::Program> program_;
    std::unique_ptr<PtyStream> stream_;
    std::unique_ptr<QSocketNotifier> exited_;
    State state_ = State::idle;
    Readiness readiness_;
    QTimer readiness_timer_;  ///< runs until the program is ready
};
