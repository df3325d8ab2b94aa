// SPDX-License-Identifier: MIT
#include "shell/hook_typing.h"

#include "shell/door.h"
#include "shell/notify.h"
#include "shell/process.h"
#include "shell/send.h"
#include "shell/status.h"
#include "ui/clearcase_setup.h"
#include "ui/environment_setup.h"
#include "ui/status_display.h"

std::vector<PromptHook> type_prompt_hooks() {
    std::vector<PromptHook> typed;
    for (PromptHook& hook : prompt_hooks(
             shell_name, user_shell,
             clearcase_setup().enable_clearcase_usage.value() ? ClearCaseUsage::on : ClearCaseUsage::off,
             status_display().status_file.text())) {
        environment_setup().precmd.set_text(hook.text);
        environment_setup().precmd.show_beginning();
        if (status_display().display.value() == StatusDisplay::display_on &&
            send_at_startup(CommandLine::of_user(hook.text), refresh_after_login)) {
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
