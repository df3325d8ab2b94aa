// SPDX-License-Identifier: MIT
#pragma once

#include "shell/file_stamp.h"
#include "shell/line_reader.h"

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>

/// A command line, with its line feeds.
struct WaitingLine {
    std::string text;
    std::string behind;  ///< a program that must have ended in the background; empty for none
};

/// The tool's command lines on their way to the shell. Each is given when a shell is there to read it, one by
/// one, in their order; what would become another program's input waits. Knows no window and no pty: what it
/// must know of them it is told, or asks.
///
/// After a line the shell is ready for the next one when it has shown so: by its prompt hook, which rewrites
/// the status file, or, where none is at work, by having stood in the foreground for a while.
class WaitingLines {
  public:
    using Clock = std::chrono::steady_clock;

    /// What it asks, and what it does.
    struct Surroundings {
        std::function<PaneUse()> use;
        std::function<std::string(pid_t group)> program_name;
        /// A program works in the background of the terminal that the group stands in front of.
        std::function<bool(pid_t group, const std::string& program)> works_in_background;
        std::function<bool()> half_typed;       ///< the user is typing a command just now
        std::function<FileStamp()> hook_stamp;  ///< of the file that the prompt hook writes
        std::function<void(const std::string&)> give;
        std::function<void()> changed;  ///< what waits has changed
        std::function<Clock::time_point()> now = Clock::now;
    };

    explicit WaitingLines(Surroundings surroundings);

    /// Gives a line as soon as a shell reads: at once if it does now.
    void submit(WaitingLine line);
    /// Looks whether the first line can be given now. To be called when the terminal was written to and,
    /// while lines wait, every so often.
    void look();
    /// Gives the first line, whatever runs.
    void send_first();
    void drop(std::size_t index);
    /// Returns how many there were.
    std::size_t drop_all();
    [[nodiscard]] const std::deque<WaitingLine>& lines() const { return lines_; }

    /// The user has ended a line for whatever reads.
    void user_ended_line();
    /// The prompt hook has been typed.
    void hook_typed() { silent_ = surroundings_.hook_stamp(); }
    /// A new shell has been started. Nothing that waits is meant for it.
    void shell_started();
    /// Off: lines go to whatever runs, once the shell has started.
    void set_hold(bool hold) { hold_ = hold; }

    [[nodiscard]] Reader reader() { return reader_.look(surroundings_.use()); }
    /// Lines have waited for longer than a shell takes from one to the next.
    [[nodiscard]] bool is_stalled() const;
    /// A line has been given so lately that its reader may still be at it.
    [[nodiscard]] bool has_just_given() const;
    /// What waits, and for what: "1 line waits for vim: svn update src". Empty while none does.
    [[nodiscard]] std::string announcement() const;

  private:
    /// A line that the shell has been given, and that it may still be at work on.
    struct Given {
        Clock::time_point at;
        FileStamp stamp;
    };

    [[nodiscard]] bool is_ready();
    [[nodiscard]] bool is_held_back();
    [[nodiscard]] bool has_come_back(Reader reader);
    void give_first();
    void note_given();

    Surroundings surroundings_;
    LineReader reader_;
    std::deque<WaitingLine> lines_;
    std::optional<Given> given_;
    std::optional<FileStamp> silent_;  ///< of the status file when the hook was not at work
    Reader in_front_ = Reader::none;
    pid_t group_in_front_ = -1;
    Clock::time_point in_front_since_;
    Clock::time_point last_progress_;
    std::optional<Clock::time_point> last_given_;
    bool user_types_ = false;  ///< what the first line waits for
    bool held_back_ = false;   ///< the same: a program in the background
    bool hold_ = true;
};
