// SPDX-License-Identifier: MIT
#include "shell/status.h"

#include "shell/messages.h"
#include "shell/notify.h"
#include "shell/process.h"
#include "shell/status_file.h"
#include "shell/text.h"
#include "toolkit/timer.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"
#include "ui/process_information.h"
#include "ui/status_display.h"

#include <cerrno>
#include <cstring>
#include <optional>

#include <fmt/format.h>
#include <unistd.h>

namespace {

/// The refresh: its interval stays zero, so that it fires once.
itimerval wtimer{};

/// This copy's status file, held for as long as it runs.
std::optional<StatusFile> own_file;

bool screen_is_locked = false;

}  // namespace

void begin_status_display() {
    own_file.emplace(create_status_file(home_dir));
    status_display().status_file.set_text(own_file->path);
    if (own_file->error == EEXIST) {
        report("No status display: all status files are in use\n");
    } else if (own_file->error != 0) {
        report(fmt::format("No status display: no file can be made in {}: {}\n", home_dir,
                           std::strerror(own_file->error)));
    }
}

void SetupTimer(int milliseconds) {
    if (status_display().display.value() != StatusDisplay::display_on) {
        return;
    }
    wtimer.it_value = {.tv_sec = 0, .tv_usec = suseconds_t{milliseconds} * 1000};
    notify_set_itimer_func(main_window(), DisplayStatusTimer, wtimer);
}

void DisplayStatusTimer() {
    const std::optional<std::string> contents = read_status_file(status_display().status_file.text());
    if (!contents) {
        return;
    }
    const ShellStatus status = parse_status(*contents);
    main_window().cwd.set_text(status.cwd);
    default_settings().prompt.set_text(remove_trailing_spaces(status.prompt));
    if (!screen_is_locked || !main_window().termpane.use().locks_on_control_s) {
        main_window().set_right_footer(
            status_line(status, status_display().enable.value(), process_information().process_id.value()));
    }
}

void show_screen_lock(bool locked) {
    screen_is_locked = locked;
    main_window().set_right_footer(locked ? "Screen is locked. Use ^Q to unlock." : "");
}

void end_status_display() {
    notify_set_itimer_func(main_window(), nullptr, wtimer);
    const std::string path = status_display().status_file.text();
    if (!path.empty()) {
        unlink(path.c_str());
    }
}

void StatusDisplayEnable() { SetupTimer(100); }

/// Nothing to do: whoever shows the status asks the choice.
Message StatusDisplayOnOff() { return {}; }
