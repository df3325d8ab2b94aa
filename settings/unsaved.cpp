// SPDX-License-Identifier: MIT
#include "settings/unsaved.h"

#include "settings/setup_table.h"
#include "ui/bookmarks.h"
#include "ui/clearcase_setup.h"
#include "ui/command_history_setup.h"
#include "ui/command_list_setup.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/edit_menu_setup.h"
#include "ui/environment_setup.h"
#include "ui/function_keys.h"
#include "ui/plot_setup.h"
#include "ui/remote_hosts.h"
#include "ui/status_display.h"
#include "ui/text_editor_setup.h"
#include "ui/user_buttons.h"

#include <algorithm>
#include <vector>

namespace {

constexpr std::string_view mark = "Not saved yet";

using Values = decltype(setup_values());

/// What the setup file holds, as far as the windows know.
Values saved;

/// Windows of settings. What other windows keep in the setup file is no setting to those who enter it.
std::vector<Frame*> setup_windows() {
    return {&bookmarks(),         &clearcase_setup(), &command_history_setup(), &command_list_setup(),
            &default_settings(),  &define_label(),    &edit_menu_setup(),       &environment_setup(),
            &function_keys(),     &plot_setup(),      &remote_hosts(),          &status_display(),
            &text_editor_setup(), &user_buttons()};
}

/// Whether a window holds the control of one of the lines that differ.
bool holds_one(const Frame& window, const std::vector<SetupEntry>& entries) {
    return std::ranges::any_of(entries, [&](const SetupEntry& entry) {
        return std::visit(
            [&]<typename Control>(const Control& control) {
                if constexpr (std::is_pointer_v<Control>) {
                    return window.holds(control->widget());
                }
                return false;
            },
            entry.control);
    });
}

std::vector<SetupEntry> entries_that_differ() {
    const Values values = setup_values();
    std::vector<SetupEntry> entries;
    for (const SetupEntry& entry : setup_table()) {
        if (values[entry.line - 2] != saved[entry.line - 2]) {
            entries.push_back(entry);
        }
    }
    return entries;
}

void show_marks() {
    const std::vector<SetupEntry> differ = entries_that_differ();
    for (Frame* window : setup_windows()) {
        window->set_right_footer(holds_one(*window, differ) ? mark : "");
    }
}

}  // namespace

void watch_setup_windows() {
    for (const SetupEntry& entry : setup_table()) {
        std::visit(
            []<typename Control>(const Control& control) {
                if constexpr (std::is_pointer_v<Control>) {
                    control->on_change(show_marks);
                }
            },
            entry.control);
    }
    note_settings_saved();
}

void note_settings_saved() {
    saved = setup_values();
    show_marks();
}

bool has_unsaved_settings() {
    return std::ranges::any_of(setup_windows(),
                               [](const Frame* window) { return window->right_footer() == mark; });
}
