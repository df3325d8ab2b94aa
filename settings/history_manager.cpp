// SPDX-License-Identifier: MIT
// The controls of "Command History Manager".
#include "settings/history.h"
#include "settings/history_format.h"
#include "settings/load_file.h"
#include "settings/notify.h"
#include "shell/background.h"
#include "shell/doubleclick.h"
#include "shell/editor.h"
#include "shell/quoting.h"
#include "shell/send_line.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/main_window.h"

#include <algorithm>

namespace {

/// Each procedure begins with it: an old message must not be taken for its own.
CommandHistoryManager& cleared_manager() {
    command_history_manager().set_left_footer("");
    return command_history_manager();
}

void go_to(CommandHistoryManager& manager, int row) {
    manager.list.select(row);
    manager.position.set_value(row);
}

void run_row(CommandHistoryManager& manager, const std::string& command) {
    if (command.empty()) {
        manager.set_left_footer("No command specified");
    } else if (send_line(manager, command)) {
        main_window().command.set_text("");
    }
}

/// Saves to `path`, and says so or why not.
bool save_history_to(CommandHistoryManager& manager, const std::string& path) {
    const bool saved = save_history(manager.list, path) == 1;
    if (saved) {
        command_history_setup().history_file_loaded.set_text(path);
    } else {
        manager.set_left_footer("Can't save history file");
    }
    return saved;
}

/// The text to search for; nothing, and the footer says why, when there is nothing to do.
std::optional<std::string> text_to_find(CommandHistoryManager& manager) {
    std::string text = manager.find_text.text();
    if (text.empty()) {
        manager.set_left_footer("Nothing to search for");
        return std::nullopt;
    }
    if (manager.list.rows() == 0) {
        manager.set_left_footer("List is empty");
        return std::nullopt;
    }
    return text;
}

void find_from(CommandHistoryManager& manager, const std::string& text, int first) {
    const std::optional<int> row = find_command_row(manager.list.all_rows(), text, first);
    if (!row) {
        manager.set_left_footer("Text not found");
        return;
    }
    manager.find_resume = *row + 1;
    go_to(manager, *row);
}

}  // namespace

void CommandHistoryList(const ListEvent& event) {
    CommandHistoryManager& manager = cleared_manager();
    main_window().set_left_footer("");
    const std::string command = manager.list.row(event.row);
    main_window().command.set_text(command);
    if (event.kind == ListEvent::Kind::activate || doubleclick(event)) {
        run_row(manager, command);
    }
}

void CommandHistoryPosition() {
    CommandHistoryManager& manager = cleared_manager();
    const int row = manager.position.value();
    if (row >= 0 && row < manager.list.rows()) {
        manager.list.select(row);
    } else if (row != manager.list.rows()) {  // where it stands before and behind all walking
        manager.set_left_footer("There is no such row");
    }
}

void CommandHistoryBegin() {
    CommandHistoryManager& manager = cleared_manager();
    if (manager.list.rows() > 0) {
        go_to(manager, 0);
    }
}

void CommandHistoryEnd() {
    CommandHistoryManager& manager = cleared_manager();
    if (manager.list.rows() > 0) {
        go_to(manager, manager.list.rows() - 1);
    }
}

void CommandHistorySaveButton() { (void)save_history_to(cleared_manager(), history_path()); }

void EditCommandHistory() {
    CommandHistoryManager& manager = cleared_manager();
    const std::string path = history_path();
    const std::optional<std::string> command = editor_command(script_word(path, ShellFamily::other));
    if (!command) {
        manager.set_left_footer("User editor not specified");
    } else if (save_history_to(manager, path)) {
        run_in_background(*command);
    }
}

void UpdateCommandHistory() {
    CommandHistoryManager& manager = cleared_manager();
    clear_history(manager.list);
    manager.set_left_footer(load_message(history_load, load_history(manager.list, history_path())));
}

void CommandHistorySort() {
    CommandHistoryManager& manager = cleared_manager();
    std::vector<std::string> rows = manager.list.all_rows();
    const std::string_view refusal = sort_refusal(rows.size());
    manager.set_left_footer(refusal);
    if (refusal.empty()) {
        std::ranges::sort(rows);  // by bytes
        manager.list.set_rows(std::move(rows));
    }
}

void CommandHistoryFind() {
    CommandHistoryManager& manager = cleared_manager();
    if (const std::optional<std::string> text = text_to_find(manager)) {
        find_from(manager, *text, 0);
    }
}

void CommandHistoryFindNext() {
    CommandHistoryManager& manager = cleared_manager();
    const std::optional<std::string> text = text_to_find(manager);
    if (!text) {
        return;
    }
    if (manager.find_resume < 0 || manager.find_resume > manager.list.rows()) {
        manager.set_left_footer("Use find first");
        return;
    }
    find_from(manager, *text, manager.find_resume);
}

void CommandHistoryFindText() { CommandHistoryFind(); }
