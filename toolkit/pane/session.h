// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/client.h"
#include "terminal/terminal.h"
#include "toolkit/pane/shell_life.h"
#include "toolkit/pane/typed_line.h"

#include <QElapsedTimer>

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A terminal with the program that runs in it: what the program writes is shown, and what it asks for is
/// done. Knows no window system: what it needs of one comes from its owner.
class TerminalSession final : private terminal::Client {
  public:
    using Selection = terminal::Client::Selection;

    /// What the session tells its owner; each is called from the event loop.
    struct Events {
        std::function<void()> changed;  ///< the terminal was written to
        std::function<void()> bell;
        std::function<void()> ready;      ///< a program that was started is ready for commands
        std::function<void()> ended;      ///< the program has ended and this was announced
        std::function<void()> restarted;  ///< the user has started it anew
        std::function<void()> resized;    ///< the program has given the terminal another size
        std::function<void(const terminal::WindowRequest&)> window_requested;
        std::function<void(Selection, const std::string&)> selection_written;  ///< UTF-8
    };
    /// What a program may ask about; must not act on the session.
    struct Surroundings {
        std::function<terminal::WindowGeometry()> window;
        std::function<std::optional<terminal::Rgb>(std::string_view)> named_colour;
    };

    explicit TerminalSession(std::size_t scrollback_rows);
    TerminalSession(const TerminalSession&) = delete;
    TerminalSession& operator=(const TerminalSession&) = delete;
    void set_events(Events events) { events_ = std::move(events); }
    void set_surroundings(Surroundings surroundings) { surroundings_ = std::move(surroundings); }
    void permit(const terminal::Permissions& permissions) { terminal_.permit(permissions); }

    /// Starts the program, and after it has ended starts it anew (`ShellLife`). A failure is shown in the
    /// terminal.
    void start(const terminal::Program& program, std::unique_ptr<terminal::Pty> started) {
        life_.start(program, room_, std::move(started));
    }
    void restart() { life_.restart(room_); }

    /// Gives the program what the user types, what the tool types, and what it has asked to be told.
    void type(std::string_view bytes);
    void submit(std::string_view bytes);
    void report(std::string_view bytes) { life_.report(bytes); }
    /// Reads what the program is about to echo of keys (`PtyStream::await_echo`).
    void await_echo();
    /// The program has not answered the last key yet.
    [[nodiscard]] bool echo_is_due() const;
    /// What has been typed since the last Return.
    [[nodiscard]] const TypedLine& typed_line() const { return typed_line_; }
    /// The process group that was in front when that line was begun.
    [[nodiscard]] pid_t typed_to() const { return typed_to_; }
    /// Calls `left` whenever the program's output is about to leave a line by a line feed; an empty function
    /// ends that.
    void watch_lines(std::function<void()> left) { line_left_ = std::move(left); }
    /// Shows a text that the program does not see.
    void show(std::string_view text);

    /// Columns and rows, and the size of their area in pixels. Anchors are moved with their text.
    void resize(terminal::Size size, int pixel_width, int pixel_height,
                std::span<terminal::Position> anchors);
    /// Empties the text. The line that a shell reads stays: it shows neither its prompt nor what has been
    /// typed again by itself.
    void clear();
    /// As a new terminal; the scrollback stays.
    void reset();

    [[nodiscard]] const terminal::Terminal& terminal() const { return terminal_; }
    [[nodiscard]] const terminal::Pty* pty() const { return life_.pty(); }
    /// A program ran and has ended.
    [[nodiscard]] bool has_ended() const { return life_.has_ended(); }
    [[nodiscard]] bool is_started() const { return life_.is_started(); }
    /// The program reads a line without showing it.
    [[nodiscard]] bool asks_for_password() const;
    /// The program has begun an update of the screen that should be seen whole (mode 2026), and not taken
    /// unduly long.
    [[nodiscard]] bool update_is_open() const;

  private:
    void reply(std::string_view bytes) override;
    void bell() override;
    void title_changed(std::string_view /*title*/) override {}  // the window's title is the tool's own
    void size_changed() override { requests_.resized = true; }
    void window_requested(const terminal::WindowRequest& request) override;
    [[nodiscard]] terminal::WindowGeometry window() const override;
    std::optional<terminal::Rgb> named_colour(std::string_view name) override;
    void selection_written(Selection selection, std::string_view text) override;

    void note_typed(std::string_view bytes);
    std::size_t feed_line_by_line(std::string_view bytes);
    [[nodiscard]] std::size_t feed(std::string_view bytes);
    void do_requests();
    void announce(const std::string& text);
    void note_update_state();

    /// What the program has asked for and is done when the terminal has been written to.
    struct Requests {
        bool resized = false;
        std::vector<terminal::WindowRequest> window;
        std::optional<std::pair<Selection, std::string>> selection;
    };

    Events events_;
    Surroundings surroundings_;
    Requests requests_;
    terminal::Terminal terminal_;
    ShellLife::Room room_;
    ShellLife life_;
    TypedLine typed_line_;
    pid_t typed_to_ = -1;
    std::function<void()> line_left_;
    QElapsedTimer update_open_;  ///< since when mode 2026 is on
};
