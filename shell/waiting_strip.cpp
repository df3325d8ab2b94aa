// SPDX-License-Identifier: MIT
// The strip of the main window that tells which command lines wait for the shell.
#include "shell/waiting_strip.h"

#include "shell/door.h"
#include "shell/notify.h"
#include "shell/status.h"
#include "shell/text.h"
#include "ui/main_window.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

namespace {

/// The rows of the list, as far as they have changed: whoever has chosen one keeps it.
void show_list(MainWindow& window, const std::deque<WaitingLine>& lines) {
    std::vector<std::string> rows;
    std::ranges::transform(lines, std::back_inserter(rows),
                           [](const WaitingLine& line) { return remove_line_feeds(line.text); });
    if (rows != window.waiting_list.all_rows()) {
        window.waiting_list.set_rows(std::move(rows));
    }
}

void show(MainWindow& window, const WaitingLines& waiting) {
    const bool several = waiting.lines().size() > 1;
    window.waiting_text.set_text(waiting.announcement());
    window.show_waiting.set_shown(several);
    window.waiting_rows.set_shown(several && window.waiting_rows.is_shown());
    show_list(window, waiting.lines());
    window.waiting.set_shown(true);
}

/// The strip changes the terminal's height, which line editors answer by drawing their line anew: so it does
/// not go while one is at work on the line that it was just given.
void show_waiting_lines() {
    MainWindow& window = main_window();
    const WaitingLines& waiting = waiting_lines();
    window.waiting_watch.set_on(!waiting.lines().empty() || waiting.has_just_given());
    if (waiting.is_stalled()) {
        show(window, waiting);
    } else if (!waiting.has_just_given()) {
        window.waiting.set_shown(false);
        window.waiting_rows.set_shown(false);
    }
}

void tell_dropped(std::size_t dropped) {
    if (dropped > 0) {
        ttysw_output(main_window().termpane,
                     fmt::format("[{} dropped that waited for the shell]\n",
                                 dropped == 1 ? "1 command line" : fmt::format("{} command lines", dropped)));
    }
}

}  // namespace

void watch_for_shell(std::function<void()> restarted) {
    begin_waiting_lines(show_waiting_lines);
    main_window().termpane.set_events({.output =
                                           [] {
                                               waiting_lines().look();
                                               follow_shell();
                                           },
                                       .ready =
                                           [] {
                                               waiting_lines().look();
                                               SetupTimer(refresh_after_login);
                                           },
                                       .ended = [] { tell_dropped(waiting_lines().drop_all()); },
                                       .restarted =
                                           [restarted = std::move(restarted)] {
                                               waiting_lines().shell_started();
                                               restarted();
                                           }});
}

void look_after_waiting_lines() {
    waiting_lines().look();
    show_waiting_lines();
}

void leave_waiting_lines() { main_window().termpane.set_focus(); }

void SendFirstWaitingLine() { waiting_lines().send_first(); }

void DropWaitingLines() { (void)waiting_lines().drop_all(); }

void ShowWaitingLines() { main_window().waiting_rows.set_shown(!main_window().waiting_rows.is_shown()); }

Message DropWaitingLine() {
    const std::optional<int> row = main_window().waiting_list.selected();
    if (!row) {
        return "No line selected";
    }
    waiting_lines().drop(static_cast<std::size_t>(*row));
    return {};
}
