// SPDX-License-Identifier: MIT
#include "settings/history.h"

#include "settings/history_format.h"
#include "settings/load_file.h"
#include "settings/notify.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/send.h"
#include "shell/text.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/main_window.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <set>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <unistd.h>

namespace {

/// More is not read of a file: no history grows so large.
constexpr std::size_t most_bytes = std::size_t{8} * 1024 * 1024;

/// The items of "Save To History File" and "Menu Action".
enum SaveToFile { after_every_command, when_quitting };
enum MenuAction { execute, move_to_command_line, both };

ScrollingList& history() { return command_history_manager().list; }

/// The files that may be replaced by the list without a loss: their commands are in it, or there were none.
/// Made before the program begins: they are asked for while it ends, too.
std::set<std::string> replaceable_files;

/// Whether a history file may be replaced without its user's order.
bool is_replaceable(const std::string& path) {
    return replaceable_files.contains(path) || (access(path.c_str(), F_OK) != 0 && errno == ENOENT);
}

/// Nobody but its owner may read what somebody has typed.
int write_history(const ScrollingList& list, const std::string& path, Durability durability) {
    constexpr mode_t owner_only = 0600;
    const int error = save_file(path, format_history(list.all_rows()),
                                {.exact_mode = owner_only, .durability = durability});
    if (error == 0) {
        replaceable_files.insert(path);
    }
    return error;
}

std::string not_replaced(const std::string& path) {
    return fmt::format("{} not written: not all of it was loaded before", path);
}

/// Saves after a command. A failure is not reported; that the file is left alone is, once.
void save_automatically(const std::string& path) {
    static std::string reported;
    if (is_replaceable(path)) {
        // A disk may take a second to sync. The rename alone keeps the file whole however this program ends;
        // if the system crashes, the last commands may be missing.
        (void)write_history(history(), path, Durability::renamed);
    } else if (reported != path) {
        reported = path;
        report(not_replaced(path) + "\n");
    }
}

/// Saves all rows; why that failed, or an empty text.
std::string save_failure(const ScrollingList& list, const std::string& path) {
    const int error = write_history(list, path, Durability::synced);
    return error == 0 ? std::string() : fmt::format("{} not written: {}", path, std::strerror(error));
}

struct Direction {
    int step;
    std::string_view at_end;
    bool rings_for_button;
};

Message walk(const Direction& direction, HistoryWalker walker) {
    CommandHistoryManager& manager = command_history_manager();
    const int rows = manager.list.rows();
    if (rows == 0) {
        return "History list is empty";
    }
    // "Position" may hold any number: from outside the list the walk enters it at that end.
    const int row = std::clamp(manager.position.value(), -1, rows) + direction.step;
    if (row < 0 || row >= rows) {
        if (walker == HistoryWalker::key || direction.rings_for_button) {
            main_window().termpane.ring_bell();
        }
        return Message(direction.at_end);
    }
    manager.position.set_value(row);
    main_window().command.set_text(manager.list.row(row));
    if (walker == HistoryWalker::button) {
        manager.list.select(row);
    }
    return {};
}

/// Whether the menu could be made; the history button has none otherwise.
bool make_history_menu(int entries) {
    const auto items = add_history_to_menu(history(), entries);
    std::vector<MenuEntry> menu;
    for (const std::string& item : items.value_or(std::vector<std::string>())) {
        menu.push_back({item, item});
    }
    main_window().history_menu.menu().set_entries(menu, my_action_proc3);
    return items.has_value();
}

}  // namespace

int load_history(ScrollingList& list, const std::string& path) {
    const LoadedFile file = load_file(path, most_bytes);
    if (file.error == ENOENT) {
        replaceable_files.insert(path);
    }
    if (!file.text) {
        return 0;
    }
    std::optional<std::vector<std::string>> commands = parse_history(*file.text);
    if (!commands) {
        return -1;
    }
    list.append(std::move(*commands));
    command_history_manager().position.set_value(list.rows());
    if (file.error == 0) {
        replaceable_files.insert(path);
    }
    return 1;
}

int save_history(const ScrollingList& list, const std::string& path) {
    const std::string failure = save_failure(list, path);
    if (!failure.empty()) {
        report(failure + "\n");
    }
    return failure.empty() ? 1 : 0;
}

void clear_history(ScrollingList& list) {
    list.delete_rows();
    replaceable_files.clear();
}

std::optional<std::vector<std::string>> add_history_to_menu(const ScrollingList& list, int count) {
    const std::vector<std::string>& rows = list.all_rows();
    if (rows.empty()) {
        return std::nullopt;
    }
    std::vector<std::string> items{""};
    const auto shown = std::min<std::ptrdiff_t>(count, std::ssize(rows));
    items.insert(items.end(), rows.rbegin(), rows.rbegin() + std::max<std::ptrdiff_t>(shown, 0));
    return items;
}

std::string history_path() {
    constexpr int in_home_directory = 0;
    const bool in_home = command_history_setup().history_file_stored.value() == in_home_directory;
    return fmt::sprintf("%s/.orvik-history", in_home ? home_dir : startup_dir);
}

void record_command(const std::string& command) {
    const CommandHistorySetup& setup = command_history_setup();
    if (!is_recorded(command.size(), setup.store_commands_longer_than.value(),
                     Recording{static_cast<std::uint8_t>(setup.history_list.value())})) {
        return;
    }
    CommandHistorySetupInsertDup();  // a setup file loaded since may have changed it
    history().append(remove_nl(command));
    command_history_manager().position.set_value(history().rows());
    if (setup.save_to_history_file.value() == after_every_command) {
        save_automatically(history_path());
    }
}

void load_history_at_startup() {
    CommandHistorySetupInsertDup();
    const std::string path = history_path();
    const int result = load_history(history(), path);
    if (result == 1) {
        command_history_setup().history_file_loaded.set_text(path);
    }
    report_load(history_load, result);
}

void make_history_menu_at_startup() {
    const int entries = command_history_setup().number_of_entries.value();
    if (entries > 0 && !make_history_menu(entries)) {
        report("Couldn't generate history menu\n");
    }
}

std::string save_history_at_quit() {
    if (command_history_setup().save_to_history_file.value() != when_quitting) {
        return {};
    }
    const std::string path = history_path();
    return is_replaceable(path) ? save_failure(history(), path) : not_replaced(path);
}

Message history_previous(HistoryWalker walker) {
    return walk({.step = -1, .at_end = "At the top of history list", .rings_for_button = true}, walker);
}

Message history_next(HistoryWalker walker) {
    return walk({.step = 1, .at_end = "At the bottom of history list", .rings_for_button = false}, walker);
}

Message Bottom_buttons_menu() {
    const int entries = command_history_setup().number_of_entries.value();
    if (entries < 1) {
        main_window().history_menu.menu().set_entries({}, my_action_proc3);
        return {};
    }
    return make_history_menu(entries) ? "" : "Couldn't generate history menu";
}

Message my_action_proc3(const std::string& item) {
    if (item.empty()) {
        return {};
    }
    const int action = command_history_setup().menu_action.value();
    Message refusal = action == move_to_command_line ? Message() : send(CommandLine::of_user(item));
    if (action != execute) {
        main_window().command.set_text(item);
        main_window().command.set_focus();  // there it is edited and run
    }
    return refusal;
}

void CommandHistorySetupInsertDup() {
    constexpr int yes = 1;
    history().set_insert_duplicates(
        command_history_setup().insert_duplicates.value() == yes ? Duplicates::allowed : Duplicates::refused);
}
