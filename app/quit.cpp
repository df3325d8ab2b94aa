// SPDX-License-Identifier: MIT
#include "app/quit.h"

#include "app/notify.h"
#include "settings/history.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/status.h"
#include "toolkit/application.h"
#include "toolkit/notice.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/send_email.h"

#include <fmt/printf.h>
#include <unistd.h>

namespace {

bool chosen_by_user = false;

void remove_left_files() {
    constexpr int last_stale_file = 20;
    for (int number = 0; number <= last_stale_file; ++number) {
        unlink(fmt::sprintf("%s/.orvik-status%d", home_dir, number).c_str());
    }
    unlink(fmt::sprintf("%s/.orvik-message", home_dir).c_str());
}

}  // namespace

void clean_up() {
    end_status_display();
    save_history_at_quit();
    if (!chosen_by_user) {
        return;
    }
    for (TextPane* pane : {&message_board().text, &notebook().text, &send_email().text}) {
        clear_window(*pane);
    }
    remove_left_files();
}

void Quit_button() {
    if (notice_prompt(main_window(), "Do you really want to quit ?", {"Yes", "Cancel"}) == 0) {
        chosen_by_user = true;
        notify_stop();
    }
}
