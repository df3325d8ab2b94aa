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
#include "shell/selected_text.h"
#include "shell/send.h"
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

/// Loads a list and remembers its file; the result of `load_list`.
int load_command_list(const std::string& path) {
    const int result = load_list(command_list_manager().list, path);
    if (result == 1) {
        command_list_setup().commands_file_loaded.set_text(path);
    }
    return result;
}

/// Why the loaded file cannot be read again; empty when it can.
Message loaded_file_refusal() {
    const std::string path = command_list_setup().commands_file_loaded.text();
    std::error_code unknown;
    if (path.empty()) {
        return "No commands file loaded";
    }
    return std::filesystem::exists(path, unknown) ? "" : "Commands file not found";
}

std::string file_in_list_browser() {
    const std::string directory = file_list_browser().directory.text();
    const std::string name = listed_name();
    return directory.empty() || name.empty() ? name : fmt::sprintf("%s/%s", directory, name);
}

/// A command, or why one of its placeholders cannot be filled.
struct RowCommand {
    std::string text;
    Message refusal;
};

/// The command that a row makes. The selection and "Text:" stand there as they are, names so that the shell
/// takes them for names.
RowCommand command_of(const std::string& row) {
    RowCommand command;
    std::optional<SelectedText> selection;
    const auto selected = [&](std::string_view) -> std::optional<std::string> {
        if (!selection) {
            selection = selected_text({.none = "Selection too long or no selection made"});
        }
        command.refusal = selection->refusal;
        return *selection ? std::optional(selection->text) : std::nullopt;
    };
    const auto name = [&command](std::string_view mark, auto source) {
        const auto word_behind = [&command, mark,
                                  source](std::string_view before) -> std::optional<std::string> {
            const std::string value = source();
            if (value.empty()) {
                command.refusal = nothing_to_put(mark);
                return std::nullopt;
            }
            std::optional<std::string> word = operand_behind(before, value, user_shell);
            if (!word) {
                command.refusal = name_refusal(value);
            }
            return word;
        };
        return Placeholder{mark, word_behind};
    };
    const std::array placeholders{
        Placeholder{"$$$", selected},
        Placeholder{"%%%", [](std::string_view) { return command_list_manager().text.text(); }},
        name("###", listed_name),
        name("@@@", [] { return main_window().cwd.text(); }),
        name("&&&", file_in_list_browser),
        name("???", selected_tree_name),
    };
    constexpr int most_of_a_kind = 2;
    command.text = fill_template(without_comment(row), placeholders, most_of_a_kind).value_or(std::string());
    return command;
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

Message BaseWindowCommandMenu() { return make_command_menu() ? "" : "Illegal commands directory"; }

Message my_action_proc2(const std::string& path) {
    std::error_code unknown;
    if (path.empty() || std::filesystem::is_directory(path, unknown)) {
        return {};
    }
    const int result = load_command_list(path);
    if (result == 1) {
        command_list_manager().open();  // the rows are what the user has chosen it for
    }
    return load_message(commands_menu_load, result);
}

void BaseWindowCommandList() { command_list_manager().open(); }

Message Edit_commands_file() {
    Message refusal = loaded_file_refusal();
    return refusal.empty() ? edit_file(command_list_setup().commands_file_loaded.text()) : refusal;
}

Message Update_commands_list() {
    Message refusal = loaded_file_refusal();
    if (!refusal.empty()) {
        return refusal;
    }
    return load_message(commands_load, load_list(command_list_manager().list,
                                                 command_list_setup().commands_file_loaded.text()));
}

Message Command_scrolling_list(const ListEvent& event) {
    const bool sends = doubleclick(event) || event.kind == ListEvent::Kind::activate;
    const std::string row = command_list_manager().list.row(event.row);
    RowCommand command = command_of(row);
    if (!command.refusal.empty()) {
        return command.refusal;
    }
    main_window().command.set_text(command.text);
    if (!sends) {
        return {};
    }
    if (row.empty()) {
        return "No command specified";
    }
    Message refusal = send(CommandLine::of_user(command.text));
    if (refusal.empty()) {
        main_window().command.set_text("");
    }
    return refusal;
}

Message FileListLoadCommand() {
    const ListedFile file = file_to_load();
    if (!file) {
        return file.refusal;
    }
    const int result = load_command_list(file.path);
    return result == 1 ? fmt::format("Commands loaded from {}", file.path)
                       : load_message(commands_load, result);
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
