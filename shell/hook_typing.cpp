// SPDX-License-Identifier: MIT
#include "shell/hook_typing.h"

#include "shell/door.h"
#include "shell/messages.h"
#include "shell/notify.h"
#include "shell/process.h"
#include "shell/send.h"
#include "shell/status.h"
#include "toolkit/resources.h"
#include "ui/clearcase_setup.h"
#include "ui/environment_setup.h"
#include "ui/main_window.h"
#include "ui/status_display.h"

#include <optional>

#include <fmt/format.h>

namespace {

constexpr std::string_view no_hook =
    "This shell does not report its directory; the X resource Orvik.FollowShell shows it";
constexpr std::string_view silent_hook =
    "The shell does not report: with \"noclobber\" set, set the X resource Orvik.PromptHook to add";

/// The status file as it was when a hook was typed that has not reported since.
std::optional<FileStamp> silent;
/// For how many looks the shell has been at its prompt all the same.
int silent_looks = 0;

HookStyle hook_style() {
    const bool adds = defaults_get_string("orvik.promptHook", "Orvik.PromptHook", "replace") == "add";
    return adds ? HookStyle::add : HookStyle::replace;
}

/// Begins to wait for the report of a hook that the shell should run.
void expect_report() {
    const bool runs = runs_prompt_hook(shell_name, hook_style());
    explain_missing_directory(runs ? "" : no_hook);
    silent_looks = 0;
    silent = runs ? std::optional(stamp_of(status_display().status_file.text())) : std::nullopt;
    main_window().hook_watch.set_on(silent.has_value());
}

}  // namespace

std::vector<PromptHook> type_prompt_hooks() {
    std::vector<PromptHook> typed;
    const bool displayed = status_display().display.value() == StatusDisplay::display_on;
    if (displayed) {
        expect_report();
    }
    for (PromptHook& hook : prompt_hooks(
             shell_name, user_shell,
             clearcase_setup().enable_clearcase_usage.value() ? ClearCaseUsage::on : ClearCaseUsage::off,
             status_display().status_file.text(), hook_style())) {
        environment_setup().precmd.set_text(hook.text);
        environment_setup().precmd.show_beginning();
        if (displayed && send_at_startup(CommandLine::of_user(hook.text), refresh_after_login)) {
            waiting_lines().hook_typed();
            typed.push_back(std::move(hook));
        }
    }
    return typed;
}

Message BaseWindowSetAlias() {
    if (status_display().status_file.text().empty()) {
        return "Orvik status file not defined";
    }
    (void)type_prompt_hooks();
    SetupTimer(refresh_after_command);
    return {};
}

void look_for_report() {
    constexpr int patience = 3;
    if (!silent || stamp_of(status_display().status_file.text()) != *silent) {
        main_window().hook_watch.set_on(false);
        return;
    }
    const bool at_prompt = waiting_lines().lines().empty() && waiting_lines().reader() == Reader::shell;
    silent_looks = at_prompt ? silent_looks + 1 : 0;
    if (silent_looks < patience) {
        return;
    }
    main_window().hook_watch.set_on(false);
    explain_missing_directory(silent_hook);
    report(
        fmt::format("The prompt hook does not write {}, so \"Cwd:\" stays empty. Where the shell has "
                    "\"noclobber\" set, set the X resource Orvik.PromptHook to \"add\", or unset it "
                    "and press \"set alias\".\n",
                    status_display().status_file.text()));
}
