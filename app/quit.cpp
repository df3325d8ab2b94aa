// SPDX-License-Identifier: MIT
#include "app/quit.h"

#include "app/notify.h"
#include "settings/history.h"
#include "settings/unsaved.h"
#include "shell/door.h"
#include "shell/foreground.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/status.h"
#include "shell/status_file.h"
#include "toolkit/application.h"
#include "toolkit/notice.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/send_email.h"

#include <cstdio>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <fmt/ranges.h>
#include <unistd.h>

namespace {

bool chosen_by_user = false;

void remove_left_files() {
    constexpr int last_stale_file = 20;
    remove_left_status_files(home_dir, last_stale_file);
    unlink(fmt::sprintf("%s/.orvik-message", home_dir).c_str());
}

/// What quitting ends in the terminal, as a line for the question; empty where nothing runs.
std::string running_programs() {
    constexpr std::size_t most_named = 8;
    std::vector<std::string> names = programs_in_session(main_window().termpane.child());
    if (names.empty()) {
        return {};
    }
    if (names.size() > most_named) {
        const std::size_t more = names.size() - most_named;
        names.resize(most_named);
        names.push_back(fmt::format("{} more", more));
    }
    return fmt::format("Still running in the terminal: {}", fmt::join(names, ", "));
}

/// What stands under the question.
std::vector<std::string> what_is_lost() {
    std::vector<std::string> lines;
    if (has_unsaved_settings()) {
        lines.emplace_back("Settings are not saved yet: \"Save Setup\" in the \"Setup\" menu does that");
    }
    if (const std::string running = running_programs(); !running.empty()) {
        lines.push_back(running);
    }
    return lines;
}

}  // namespace

void clean_up() {
    if (!chosen_by_user) {
        const std::string trouble = clean_up_without_display();
        if (!trouble.empty()) {
            std::fprintf(stderr, "%s\n", trouble.c_str());
        }
        return;
    }
    end_status_display();
    for (TextPane* pane : {&message_board().text, &notebook().text, &send_email().text}) {
        clear_window(*pane);
    }
    remove_left_files();
}

std::string clean_up_without_display() {
    end_status_display();
    return save_history_at_quit();
}

void Quit_button() {
    const bool waiting = !waiting_lines().lines().empty();
    if (!agreed(main_window(),
                waiting ? "Command lines are waiting for the shell. Quit and drop them ?"
                        : "Do you really want to quit ?",
                what_is_lost())) {
        return;
    }
    const std::string trouble = save_history_at_quit();
    if (!trouble.empty() && !agreed(main_window(), trouble + ". Quit without it ?")) {
        return;
    }
    chosen_by_user = true;
    notify_stop();
}
