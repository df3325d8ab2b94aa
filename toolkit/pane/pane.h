// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/pty.h"
#include "terminal/terminal.h"
#include "toolkit/font.h"
#include "toolkit/pane/key_event.h"
#include "toolkit/pane/use.h"
#include "toolkit/panel.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

class PaneWidget;
class QWidget;

/// Whether a bell makes the pane flash; it sounds in either case.
enum class VisualBell : std::uint8_t { off, on };

/// A pane that shows a terminal with a program, the user's shell, in it. It looks after scrolling, selecting,
/// pasting, searching and the accessible text itself, and lives as long as its parent widget.
class TerminalPane {
  public:
    TerminalPane(Container& parent, std::string_view accessible_name);
    TerminalPane(QWidget* parent, std::string_view accessible_name);

    /// Starts the program, or takes over one that was started already. When it has ended, the pane says so,
    /// and Return starts it again.
    void start(const terminal::Program& program, std::unique_ptr<terminal::Pty> started = {});

    [[nodiscard]] QWidget* widget() const;
    void set_font(const Font& font);
    void set_focus();
    void permit(const terminal::Permissions& permissions);
    /// Empties the text, with the scrollback, but for the line that a shell reads.
    void clear();
    /// False for a bell that follows too soon on another: it is passed over.
    bool ring_bell();
    void set_visual_bell(VisualBell bell);

    /// The logical line that the insertion point is on, as far as it has been shown.
    struct CurrentLine {
        std::string before;  ///< from its start (behind the last line feed) to the insertion point
        std::string behind;  ///< what follows, without blanks at the end
        bool settled;        ///< the program has answered the last key: it may move the insertion point else
    };
    /// What the program echoes of keys just typed is read first; that may take it a moment.
    [[nodiscard]] CurrentLine current_line();
    /// The same as it stands, without a wait.
    [[nodiscard]] CurrentLine shown_line() const;
    /// The line that is being typed, as far as the keys tell, whether it is shown yet or not. Nothing where
    /// only the program knows it, or where it is a password.
    [[nodiscard]] std::optional<std::string> typed_line() const;
    /// Calls `left` with each line that the output leaves by a line feed, as it stands then; an empty
    /// function ends that.
    void watch_lines(const std::function<void(const CurrentLine&)>& left);
    [[nodiscard]] int columns() const;
    [[nodiscard]] int rows() const;
    [[nodiscard]] PaneUse use() const;
    /// The process group that was in front when the line that is being typed was begun; nothing where nothing
    /// has been typed since the last Return, ^C, or ^D in an empty line.
    [[nodiscard]] std::optional<pid_t> typed_to() const;
    /// The program's process, -1 when none runs.
    [[nodiscard]] pid_t child() const;
    /// The program has ended, or could not be started; Return starts it anew.
    [[nodiscard]] bool has_ended() const;

    /// What the pane tells its owner, from the event loop.
    struct Events {
        std::function<void()> bell;
        std::function<void()> output;     ///< the program has written something, which is shown
        std::function<void()> ready;      ///< a program that was started is ready for commands
        std::function<void()> ended;      ///< it has ended and this was announced
        std::function<void()> restarted;  ///< the user has started it anew
    };
    void set_events(Events events);

  private:
    PaneWidget* pane_;  ///< owned by its parent
    friend void ttysw_input(TerminalPane& pane, std::string_view text);
    friend void ttysw_output(TerminalPane& pane, std::string_view text);
    friend void notify_interpose_event_func(TerminalPane& pane, std::function<bool(KeyEvent&)> function);
    friend void textsw_possibly_normalize(TerminalPane& pane);
};

/// Types text into the pane's program: in order, and nothing is lost. Before the program runs, and once it
/// has ended, text is dropped: what was meant for one shell must not run in the next.
void ttysw_input(TerminalPane& pane, std::string_view text);
/// Shows text in the pane only; the program does not see it.
void ttysw_output(TerminalPane& pane, std::string_view text);
/// The function sees key events before the pane does; it may change them, or consume them by returning true.
void notify_interpose_event_func(TerminalPane& pane, std::function<bool(KeyEvent&)> function);
/// Scrolls the insertion point into view.
void textsw_possibly_normalize(TerminalPane& pane);
