// SPDX-License-Identifier: MIT
#include "settings/command_list.h"

#include "browsers/listed_file.h"
#include "settings/command_list_format.h"
#include "settings/directory_menu.h"
#include "settings/directory_menus.h"
#include "settings/load_file.h"
#include "settings/notify.h"
#include "shell/doubleclick.h"
#include "shell/editor.h"
#include "shell/fill_template.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/send_line.h"
#include "shell/shell.h"
#include "ui/command_list_manager.h"
#include "ui/command_list_setup.h"
#include "ui/file_list_browser.h"
#include "ui/main_window.h"

#include <array>
#include <filesystem>
#include <utility>

#include <fmt/printf.h>

namespace {

/// More is not read of a file: no list of commands grows so large.
constexpr std::size_t most_bytes = std::size_t{8} * 1024 * 1024;
constexpr int list_margin = 40;  ///< pixels, of a list that does not follow its window's size

CommandListManager& cleared_manager() {
    command_list_manager().set_left_footer("");
    return command_list_manager();
}

/// Loads a list and remembers its file; the result of `load_list`.
int load_command_list(const std::string& path) {
    const int result = load_list(command_list_manager().list, path);
    if (result == 1) {
        command_list_setup().commands_file_loaded.set_text(path);
    }
    return result;
}

/// The loaded file; nothing, and the footer says why, when there is none.
std::optional<std::string> loaded_file(CommandListManager& manager) {
    std::string path = command_list_setup().commands_file_loaded.text();
    std::error_code unknown;
    if (path.empty()) {
        manager.set_left_footer("No commands file loaded");
        return std::nullopt;
    }
    if (!std::filesystem::exists(path, unknown)) {
        manager.set_left_footer("Commands file not found");
        return std::nullopt;
    }
    return path;
}

std::string file_in_list_browser() {
    const std::string directory = file_list_browser().directory.text();
    const std::string name = file_list_browser().file_name.text();
    return directory.empty() || name.empty() ? name : fmt::sprintf("%s/%s", directory, name);
}

/// The command that a row makes; nothing, and the footer says why, when one of its placeholders cannot be
/// filled. The selection and "Text:" stand there as they are, names so that the shell takes them for names.
std::optional<std::string> command_of(CommandListManager& manager, const std::string& row) {
    std::optional<std::string> selection;
    const auto selected = [&](std::string_view) {
        if (!selection) {
            selection = selected_line(manager, "Selection too long or no selection made");
        }
        return selection;
    };
    const auto name = [&manager](std::string_view mark, auto source) {
        const auto word_behind = [&manager, mark,
                                  source](std::string_view before) -> std::optional<std::string> {
            const std::string value = source();
            if (value.empty()) {
                manager.set_left_footer(nothing_to_put(mark));
                return std::nullopt;
            }
            std::optional<std::string> word = operand_behind(before, value, user_shell);
            if (!word) {
                manager.set_left_footer(name_refusal(value));
            }
            return word;
        };
        return Placeholder{mark, word_behind};
    };
    const std::array placeholders{
        Placeholder{"$$$", selected},
        Placeholder{"%%%", [&](std::string_view) { return manager.text.text(); }},
        name("###", [] { return file_list_browser().file_name.text(); }),
        name("@@@", [] { return main_window().cwd.text(); }),
        name("&&&", file_in_list_browser),
        name("???", selected_tree_name),
    };
    constexpr int most_of_a_kind = 2;
    return fill_template(without_comment(row), placeholders, most_of_a_kind);
}

/// Whether the menu could be made; the button has none otherwise.
bool make_command_menu() {
    const std::string directory = path_meant(command_list_setup().commands_directory.text());
    return add_path_to_menu(main_window().command_menu.menu(), directory, hide_nothing, MenuFooter::none) ==
           1;
}

}  // namespace

int load_list(ScrollingList& list, const std::string& path) {
    const LoadedFile file = load_file(path, most_bytes);
    if (!file.text) {
        return 0;
    }
    std::optional<std::vector<std::string>> rows = parse_commands(*file.text);
    if (!rows) {
        return -1;
    }
    list.set_rows(std::move(*rows));
    return 1;
}

void make_command_menu_at_startup() {
    if (!make_command_menu()) {
        report("Illegal commands directory\n");
    }
}

void size_command_list() {
    command_list_manager().set_width(command_list_setup().window_width.value());
    CommandListFollowWindow();
}

void BaseWindowCommandMenu() {
    main_window().set_left_footer(make_command_menu() ? "" : "Illegal commands directory");
}

void my_action_proc2(const std::string& path) {
    std::error_code unknown;
    if (path.empty() || std::filesystem::is_directory(path, unknown)) {
        return;
    }
    main_window().set_left_footer(load_message(commands_menu_load, load_command_list(path)));
}

void BaseWindowCommandList() { command_list_manager().open(); }

void Edit_commands_file() {
    CommandListManager& manager = cleared_manager();
    if (const std::optional<std::string> path = loaded_file(manager)) {
        edit_file(manager, *path);
    }
}

void Update_commands_list() {
    CommandListManager& manager = cleared_manager();
    const std::optional<std::string> path = loaded_file(manager);
    if (!path) {
        return;
    }
    manager.set_left_footer(load_message(commands_load, load_list(manager.list, *path)));
}

void Command_scrolling_list(const ListEvent& event) {
    CommandListManager& manager = cleared_manager();
    const bool send = doubleclick(event) || event.kind == ListEvent::Kind::activate;
    const std::string row = manager.list.row(event.row);
    const std::optional<std::string> command = command_of(manager, row);
    if (!command) {
        return;
    }
    main_window().command.set_text(*command);
    if (!send) {
        return;
    }
    if (row.empty()) {
        manager.set_left_footer("No command specified");
    } else if (send_line(manager, *command)) {
        main_window().command.set_text("");
    }
}

void FileListLoadCommand() {
    const std::optional<std::string> path = listed_file();
    if (!path) {
        return;
    }
    const int result = load_command_list(*path);
    file_list_browser().set_left_footer(result == 1 ? fmt::format("Commands loaded from {}", *path)
                                                    : std::string(load_message(commands_load, result)));
}

void CommandListFollowWindow() {
    const bool follows = command_list_setup().follow_window_size.value() == CommandListSetup::follow;
    command_list_manager().list.set_margin(follows ? 0 : list_margin);
}

/// The list has a width of its own then, until it is told again to follow the window's.
void CommandListSetupWindowWidth() {
    command_list_manager().set_width(command_list_setup().window_width.value());
    command_list_manager().list.set_margin(list_margin);
}

// Return accepts the text, and the field holds it already: the "Command" menu is made of the directory each
// time it opens, "Edit" and "Update" read which file is loaded.
void EnvironmentSetupCommandsDir() {}
void Commands_file_loaded() {}
