// SPDX-License-Identifier: MIT
#include "settings/history.h"

#include "settings/history_file.h"
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
#include <map>
#include <utility>

#include <fmt/format.h>
#include <fmt/printf.h>
#include <unistd.h>

namespace {

/// The items of "Save To History File" and "Menu Action".
enum SaveToFile { after_every_command, when_quitting };
enum MenuAction { execute, move_to_command_line, both };

ScrollingList& history() { return command_history_manager().list; }

/// The files that may be replaced by the list without a loss, by their paths: their commands are in it, or
/// there were none. Made before the program begins: they are asked for while it ends, too.
std::map<std::string, HistoryFile> known_files;

/// The file, if it may be replaced without its user's order.
HistoryFile* replaceable_file(const std::string& path) {
    const auto known = known_files.find(path);
    if (known != known_files.end()) {
        return &known->second;
    }
    const bool free = access(path.c_str(), F_OK) != 0 && errno == ENOENT;
    return free ? &known_files.try_emplace(path, path).first->second : nullptr;
}

// Why a file was not written, beside what the system says.
constexpr std::string_view not_loaded = "not all of it was loaded before";
constexpr std::string_view in_use = "another Orvik is writing it";

/// Takes what other copies have filed into the list, and out of it what is gone from the file. Whether the
/// file may still be replaced.
bool take_in_news(ScrollingList& list, HistoryFile& file) {
    std::optional<HistoryNews> news = file.news();
    if (!news) {
        return false;
    }
    if (!news->gone.empty()) {
        list.set_rows(without(list.all_rows(), news->gone));
    }
    list.append(std::move(news->added));
    return true;
}

/// Adds a command, if there is one, and replaces the file by the list, in one turn. Why the file was not
/// written; empty when it was.
std::string_view save_in_turn(ScrollingList& list, const std::string& path, Durability durability,
                              const std::optional<std::string>& command = {}) {
    const HistoryTurn turn(path);
    HistoryFile* file = replaceable_file(path);
    if (file != nullptr && !turn.is_refused() && !take_in_news(list, *file)) {
        known_files.erase(path);
        file = nullptr;
    }
    if (command) {
        list.append(*command);
    }
    if (file == nullptr) {
        return not_loaded;
    }
    if (turn.is_refused()) {
        return in_use;
    }
    const int error = file->write(list.all_rows(), durability);
    return error == 0 ? "" : std::strerror(error);
}

std::string not_written(const std::string& path, std::string_view reason) {
    return reason.empty() ? "" : fmt::format("{} not written: {}", path, reason);
}

/// Whether the last command could not be saved because another copy was at the file.
bool save_is_owed = false;

/// Files a command and saves. A failure is not reported; that the file is left alone is, once.
void save_with(const std::string& path, const std::string& command) {
    static std::string reported;
    // A disk may take a second to sync. The rename alone keeps the file whole however this program ends; if
    // the system crashes, the last commands may be missing.
    const std::string_view reason = save_in_turn(history(), path, Durability::renamed, command);
    save_is_owed = reason == in_use;
    if (reason == not_loaded && reported != path) {
        reported = path;
        report(not_written(path, reason) + "\n");
    }
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
    const FileStamp stamp = stamp_of(path);
    const LoadedFile file = load_file(path, largest_history);
    if (file.error == ENOENT) {
        known_files.insert_or_assign(path, HistoryFile(path));
    }
    if (!file.text) {
        return 0;
    }
    std::optional<std::vector<std::string>> commands = parse_history(*file.text);
    if (!commands) {
        return -1;
    }
    list.append(*commands);
    command_history_manager().position.set_value(list.rows());
    if (file.error == 0) {
        known_files.insert_or_assign(path, HistoryFile(path, stamp, *std::move(commands)));
    }
    return 1;
}

int save_history(ScrollingList& list, const std::string& path) {
    std::string_view reason = save_in_turn(list, path, Durability::synced);
    if (reason == not_loaded) {  // it is its user who says so
        known_files.insert_or_assign(path, HistoryFile(path, stamp_of(path), {}));
        reason = save_in_turn(list, path, Durability::synced);
    }
    if (!reason.empty()) {
        report(not_written(path, reason) + "\n");
    }
    return reason.empty() ? 1 : 0;
}

void clear_history(ScrollingList& list) {
    list.delete_rows();
    known_files.clear();
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
    if (!is_recorded(command, setup.store_commands_longer_than.value(),
                     Recording{static_cast<std::uint8_t>(setup.history_list.value())})) {
        return;
    }
    CommandHistorySetupInsertDup();  // a setup file loaded since may have changed it
    const std::string row = remove_nl(command);
    if (setup.save_to_history_file.value() == after_every_command) {
        save_with(history_path(), row);
    } else {
        history().append(row);
    }
    command_history_manager().position.set_value(history().rows());
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
    const int when = command_history_setup().save_to_history_file.value();
    if (when != when_quitting && !(when == after_every_command && save_is_owed)) {
        return {};
    }
    const std::string path = history_path();
    return not_written(path, save_in_turn(history(), path, Durability::synced));
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
