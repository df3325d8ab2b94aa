// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/client.h"
#include "terminal/pty.h"
#include "terminal/terminal.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A terminal with the program that runs in it: moves bytes between the two in bounded slices of the event
/// loop's time, and starts the program anew when asked to. Knows no window.
class TerminalSession final : private terminal::Client {
  public:
    /// What the session tells its owner; each is called from the event loop.
    struct Events {
        std::function<void()> changed;  ///< the terminal was written to
        std::function<void()> bell;
        std::function<void()> ready;      ///< a program that was started is ready for commands
        std::function<void()> ended;      ///< the program has ended and this was announced
        std::function<void()> restarted;  ///< the user has started it anew
        std::function<void()> resized;    ///< the program has given the terminal another size
        std::function<void(const terminal::WindowRequest&)> window_requested;
    };

    explicit TerminalSession(std::size_t scrollback_rows);
    ~TerminalSession() override;
    TerminalSession(const TerminalSession&) = delete;
    TerminalSession& operator=(const TerminalSession&) = delete;
    void set_events(Events events) { events_ = std::move(events); }
    /// What tells the program about the window; must not act on the session.
    void set_window_source(std::function<terminal::WindowGeometry()> source) { window_ = std::move(source); }
    void permit(const terminal::Permissions& permissions) { terminal_.permit(permissions); }

    /// Starts the program, and after it has ended starts it anew. A failure is shown in the terminal.
    void start(const terminal::Program& program);
    void restart();

    /// Queues bytes for the program, in order and without loss. After it has ended they are dropped: the
    /// announcement is still the last line to be seen, and a later shell must not run what was meant for an
    /// earlier one.
    void type(std::string_view bytes);
    /// The same for the tool's own commands: while the program is still busy with its start-up files they are
    /// held back, so that no question asked there takes them for the answer.
    void submit(std::string_view bytes);
    /// Reads what the program has written, and what it is about to echo of the last key typed. Waits at most
    /// some milliseconds, and only when nothing has been read since that key.
    void await_echo();
    /// The program has not answered the last key yet.
    [[nodiscard]] bool echo_is_due() const { return echo_due_; }
    /// Shows a text that the program does not see.
    void show(std::string_view text);

    /// Columns and rows, and the size of their area in pixels. Anchors are moved with their text.
    void resize(terminal::Size size, int pixel_width, int pixel_height,
                std::span<terminal::Position> anchors);
    void clear();
    /// As a new terminal; the scrollback stays.
    void reset();

    [[nodiscard]] const terminal::Terminal& terminal() const { return terminal_; }
    [[nodiscard]] const terminal::Pty* pty() const { return pty_.get(); }
    /// A program ran and has ended.
    [[nodiscard]] bool has_ended() const { return state_ == State::ended; }
    /// The program reads a line without showing it.
    [[nodiscard]] bool asks_for_password() const;
    /// The program has begun an update of the screen that should be seen whole (mode 2026), and not taken
    /// unduly long.
    [[nodiscard]] bool update_is_open() const;

  private:
    enum class State : std::uint8_t { idle, starting, running, ended };

    void reply(std::string_view bytes) override;
    void bell() override;
    void title_changed(std::string_view title) override;
    void size_changed() override;
    void window_requested(const terminal::WindowRequest& request) override;
    [[nodiscard]] terminal::WindowGeometry window() const override;
    std::optional<terminal::Rgb> named_colour(std::string_view name) override;
    void selection_written(Selection selection, std::string_view text) override;

    void write(std::string_view bytes);
    void feed(std::string_view bytes);
    void do_requests();
    void read_slice();
    void write_pending();
    void check_for_end();
    void finish(int status);
    void announce(const std::string& text);
    void note_update_state();
    void run();
    void drop_pty();
    void watch_readiness();
    [[nodiscard]] bool is_ready() const;

    /// What the program has asked for and is done when the terminal has been written to.
    struct Requests {
        bool resized = false;
        std::vector<terminal::WindowRequest> window;
        std::optional<std::pair<Selection, std::string>> selection;
    };

    Events events_;
    std::function<terminal::WindowGeometry()> window_;
    Requests requests_;
    terminal::Terminal terminal_;
    std::optional<terminal::Program> program_;
    std::unique_ptr<terminal::Pty> pty_;
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    std::unique_ptr<QSocketNotifier> exited_;
    QTimer hung_up_;  ///< looks after a program that has closed its terminal but not ended
    State state_ = State::idle;
    std::string held_back_;  ///< submitted before the program was ready
    QTimer readiness_;
    QElapsedTimer since_start_;
    QElapsedTimer since_output_;  ///< valid once a starting program has written something
    QElapsedTimer since_key_;
    bool echo_due_ = false;  ///< a key was typed and nothing has been read since
    int pixel_width_ = 0;
    int pixel_height_ = 0;
    QElapsedTimer update_open_;  ///< since when mode 2026 is on
};
