// SPDX-License-Identifier: MIT
#include "shell/status.h"

#include "shell/foreground.h"
#include "shell/messages.h"
#include "shell/notify.h"
#include "shell/process.h"
#include "shell/status_file.h"
#include "shell/text.h"
#include "toolkit/resources.h"
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

/// The directory that the shell has reported last.
std::string reported_directory;

bool follows_shell() { return defaults_get_boolean("orvik.followShell", "Orvik.FollowShell"); }

/// What the shell reports, else, where its user wants that, what the kernel knows of it. What the user is
/// just writing stays.
void show_directory() {
    TextField& cwd = main_window().cwd;
    if (cwd.is_being_edited()) {
        return;
    }
    if (reported_directory.empty() && follows_shell()) {
        cwd.set_name(directory_of(main_window().termpane.child()));
    } else {
        cwd.set_text(reported_directory);
    }
}

bool is_displayed() { return status_display().display.value() == StatusDisplay::display_on; }

}  // namespace

void begin_status_display() {
    own_file.emplace(create_status_file(home_dir));
    status_display().status_file.on_change(
        [] { main_window().status_watch.watch(status_display().status_file.text()); });
    status_display().status_file.set_text(own_file->path);
    if (own_file->error == EEXIST) {
        report("No status display: all status files are in use\n");
    } else if (own_file->error != 0) {
        report(fmt::format("No status display: no file can be made in {}: {}\n", home_dir,
                           std::strerror(own_file->error)));
    }
}

void SetupTimer(int milliseconds) {
    if (!is_displayed()) {
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
    reported_directory = status.cwd;
    show_directory();
    if (!status.cwd.empty()) {
        explain_missing_directory("");
    }
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

void explain_missing_directory(std::string_view hint) {
    main_window().cwd.set_hint(hint);
    main_window().explain_right_footer(hint);
}

void follow_shell() {
    if (reported_directory.empty() && is_displayed() && follows_shell()) {
        show_directory();
    }
}

/// The timer alone would miss a command that takes longer than it.
void follow_status_file() {
    if (is_displayed()) {
        DisplayStatusTimer();
    }
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
