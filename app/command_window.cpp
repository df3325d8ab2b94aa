// SPDX-License-Identifier: MIT
#include "app/command_window.h"

#include "app/command_field.h"
#include "app/notify.h"
#include "app/typed_command.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "ui/command_window.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"

namespace {

/// One message for both.
constexpr SelectionMessages no_selection{"No selection made or selection too long",
                                         "No selection made or selection too long"};

}  // namespace

void show_command_window() {
    constexpr int below_main_window = 600;  // pixels
    command_window().open(0, below_main_window);
    command_window().command.set_focus();
}

Message CommandWindowPush() {
    const SelectedText directory = selected_name(no_selection);
    return directory ? send(CommandLine("pushd").path(directory.text)) : directory.refusal;
}

Message CommandWindowPop() { return send(CommandLine("popd")); }

/// The names are the user's own words: nothing in them is quoted, and no question is asked but by rm.
Message CommandWindowRemove() {
    const std::string names = command_window().command.text();
    return names.empty() ? "No file" : send(CommandLine("rm").raw(names));
}

Message CommandWindowRun() {
    const std::string command = command_window().command.text();
    return command.empty() ? "No command" : send(CommandLine::of_user(command));
}

Message CommandWindowLast() {
    const std::string last = default_settings().last_command.text();
    if (last.empty()) {
        return "No command stored";
    }
    command_window().command.set_text(last);
    return {};
}

Message CommandWindowGet() {
    const SelectedText selected = selected_text(no_selection);
    if (selected) {
        command_window().command.set_text(selected.text);
    }
    return selected.refusal;
}

Message CommandWindowClearButton() {
    command_window().command.set_text("");
    return {};
}

Message CommandWindowCopy() {
    const TakenCommand command = take_typed_command(CommandAsker::copy_button);
    if (command) {
        command_window().command.set_text(command.text);
    }
    return command.refusal;
}

Message CommandWindowCommandLine() { return send_command_field(command_window().command); }

Message FloatingCommandLine() {
    show_command_window();
    return {};
}
