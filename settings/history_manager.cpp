// SPDX-License-Identifier: MIT
// The controls of "Command History Manager".
#include "settings/history.h"
#include "settings/history_format.h"
#include "settings/load_file.h"
#include "settings/notify.h"
#include "shell/doubleclick.h"
#include "shell/editor.h"
#include "shell/send.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/main_window.h"

#include <algorithm>

namespace {

void go_to(CommandHistoryManager& manager, int row) {
    manager.list.select(row);
    manager.position.set_value(row);
}

Message run_row(const std::string& command) {
    if (command.empty()) {
        return "No command specified";
    }
    Message refusal = send(CommandLine::of_user(command));
    if (refusal.empty()) {
        main_window().command.set_text("");
    }
    return refusal;
}

/// Saves to `path`, or returns why not.
Message save_history_to(CommandHistoryManager& manager, const std::string& path) {
    if (save_history(manager.list, path) != 1) {
        return "Can't save history file";
    }
    command_history_setup().history_file_loaded.set_text(path);
    return {};
}

/// Selects the next row from `first` on that holds the text searched for.
Message find_from(CommandHistoryManager& manager, int first) {
    const std::string text = manager.find_text.text();
    if (text.empty()) {
        return "Nothing to search for";
    }
    if (manager.list.rows() == 0) {
        return "List is empty";
    }
    if (first < 0 || first > manager.list.rows()) {
        return "Use find first";
    }
    const std::optional<int> row = find_command_row(manager.list.all_rows(), text, first);
    if (!row) {
        return "Text not found";
    }
    manager.find_resume = *row + 1;
    go_to(manager, *row);
    return {};
}

}  // namespace

Message CommandHistoryList(const ListEvent& event) {
    const std::string command = command_history_manager().list.row(event.row);
    main_window().set_left_footer("");
    main_window().command.set_text(command);
    return event.kind == ListEvent::Kind::activate || doubleclick(event) ? run_row(command) : Message();
}

Message CommandHistoryPosition() {
    CommandHistoryManager& manager = command_history_manager();
    const int row = manager.position.value();
    if (row >= 0 && row < manager.list.rows()) {
        manager.list.select(row);
        return {};
    }
    // It stands before and behind all rows when there is nothing to walk to.
    return row == manager.list.rows() ? "" : "There is no such row";
}

Message CommandHistoryBegin() {
    CommandHistoryManager& manager = command_history_manager();
    if (manager.list.rows() > 0) {
        go_to(manager, 0);
    }
    return {};
}

Message CommandHistoryEnd() {
    CommandHistoryManager& manager = command_history_manager();
    if (manager.list.rows() > 0) {
        go_to(manager, manager.list.rows() - 1);
    }
    return {};
}

Message CommandHistorySaveButton() { return save_history_to(command_history_manager(), history_path()); }

Message EditCommandHistory() {
    const std::string path = history_path();
    if (!has_editor()) {
        return no_editor;
    }
    Message failure = save_history_to(command_history_manager(), path);
    return failure.empty() ? edit_file(path) : failure;
}

Message UpdateCommandHistory() {
    ScrollingList& list = command_history_manager().list;
    clear_history(list);
    return load_message(history_load, load_history(list, history_path()));
}

Message CommandHistorySort() {
    ScrollingList& list = command_history_manager().list;
    std::vector<std::string> rows = list.all_rows();
    Message refusal(sort_refusal(rows.size()));
    if (refusal.empty()) {
        std::ranges::sort(rows);  // by bytes
        list.set_rows(std::move(rows));
    }
    return refusal;
}

Message CommandHistoryFind() { return find_from(command_history_manager(), 0); }

Message CommandHistoryFindNext() {
    return find_from(command_history_manager(), command_history_manager().find_resume);
}

Message CommandHistoryFindText() { return CommandHistoryFind(); }
