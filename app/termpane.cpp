// SPDX-License-Identifier: MIT
// The tool's own keys in the terminal pane.
#include "app/termpane.h"

#include "app/command_line.h"
#include "app/filing.h"
#include "app/selection_commands.h"
#include "settings/history.h"
#include "settings/user_buttons.h"
#include "shell/door.h"
#include "shell/status.h"
#include "ui/default_settings.h"
#include "ui/function_keys.h"
#include "ui/main_window.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using terminal::Key;

constexpr int editing_enabled = 1;

/// What becomes of a line editing key.
enum class Action : std::uint8_t { to_shell, history_next, history_previous };

/// A key of line editing: with "Command Line Editing" enabled another control character goes to the shell's
/// own line editor; disabled, the arrows walk the history.
struct EditingKey {
    Key key;      ///< none for the control character
    char letter;  ///< of the control character
    char typed;   ///< with editing enabled: the letter of the control character that the shell is given
    Action when_disabled;
};

constexpr std::array editing_keys{
    EditingKey{Key::left, 0, 'b', Action::to_shell},
    EditingKey{Key::right, 0, 'f', Action::to_shell},
    EditingKey{Key::down, 0, 'n', Action::history_next},
    EditingKey{Key::up, 0, 'p', Action::history_previous},
    EditingKey{Key::none, 'n', 'n', Action::history_next},
    EditingKey{Key::none, 'p', 'p', Action::history_previous},
    EditingKey{Key::none, 'd', 'd', Action::to_shell},
    EditingKey{Key::none, 'w', 'w', Action::to_shell},
    EditingKey{Key::none, 'u', 'u', Action::to_shell},
    EditingKey{Key::none, 'r', 'e', Action::to_shell},
};

/// A key that does something of the tool's and stays with it.
struct ToolKey {
    Key key;      ///< none for the control character
    char letter;  ///< of the control character
    Message (*action)();
    bool editing_only = false;  ///< only with "Command Line Editing" enabled
};

template <TextField FunctionKeys::*field>
Message send_function_key_command() {
    return send_user_command((function_keys().*field).text(), "Function key command not defined");
}

constexpr std::array tool_keys{
    ToolKey{.key = Key::insert, .action = insert_selection, .editing_only = true},
    ToolKey{.key = Key::f1, .action = run_selection},
    ToolKey{.key = Key::f2, .action = run_selection_in_background},
    ToolKey{.key = Key::f3, .action = edit_selected_file},
    ToolKey{.key = Key::f4, .action = go_directory_up},
    ToolKey{.key = Key::f5, .action = go_to_selected_directory},
    ToolKey{.key = Key::f6, .action = type_selection},
    ToolKey{.key = Key::f7, .action = send_function_key_command<&FunctionKeys::function_key_7_command>},
    ToolKey{.key = Key::f8, .action = send_function_key_command<&FunctionKeys::function_key_8_command>},
    ToolKey{.key = Key::f9, .action = send_function_key_command<&FunctionKeys::function_key_9_command>},
    ToolKey{.letter = 'x', .action = [] { return move_typed_command(CommandAsker::return_key); }},
    ToolKey{.letter = 'l', .action = recall_last_command},
    ToolKey{.letter = 'o', .action = recall_by_selection},
};

bool fits(const KeyEvent& event, Key key, char letter) {
    return key == Key::none ? event.is_control(letter)
                            : event.key == key && event.modifiers == terminal::Modifiers{};
}

bool is_return(const KeyEvent& event) {
    return (event.key == Key::enter || event.key == Key::keypad_enter) &&
           event.modifiers == terminal::Modifiers{};
}

/// The terminal pane's own procedure for the keys of line editing; whether the key is done with.
bool termpane_event_proc2(KeyEvent& event, const EditingKey& key) {
    if (default_settings().command_line_editing.value() == editing_enabled) {
        event.key = Key::none;
        event.text = key.typed;
        event.modifiers = {.control = true};
        return false;
    }
    if (key.when_disabled == Action::history_next) {
        main_window().set_left_footer(history_next());
    } else if (key.when_disabled == Action::history_previous) {
        main_window().set_left_footer(history_previous());
    }
    return key.when_disabled != Action::to_shell;
}

KeptKeys kept_keys;

/// Sees every key before the terminal pane does; whether it is done with. While another program than a shell
/// reads the terminal, all keys are its own.
bool termpane_event_proc(KeyEvent& event) {
    if (event.kind == KeyEvent::Kind::release) {
        if (is_return(event)) {
            SetupTimer(refresh_after_command);
        }
        return false;
    }
    if (is_return(event)) {
        file_typed_command();
        waiting_lines().user_ended_line();
        return false;
    }
    if (event.is_control_shift('L')) {
        main_window().command.set_focus();
        main_window().command.select_all();
        return true;
    }
    if (main_window().termpane.use().full_screen) {
        return false;
    }
    if (event.is_control('s')) {
        show_screen_lock(true);
    } else if (event.is_control('q')) {
        show_screen_lock(false);
    }
    if (!is_shell(waiting_lines().reader())) {
        return false;
    }
    if (kept_keys.holds(event)) {
        return false;
    }
    const bool editing = default_settings().command_line_editing.value() == editing_enabled;
    for (const ToolKey& key : tool_keys) {
        if (fits(event, key.key, key.letter) && (editing || !key.editing_only)) {
            main_window().set_left_footer(key.action());
            return true;
        }
    }
    const auto* const found = std::ranges::find_if(
        editing_keys, [&](const EditingKey& key) { return fits(event, key.key, key.letter); });
    return found != editing_keys.end() && termpane_event_proc2(event, *found);
}

}  // namespace

void leave_to_shell(KeptKeys keys) { kept_keys = std::move(keys); }

void interpose_terminal_keys() { notify_interpose_event_func(main_window().termpane, termpane_event_proc); }
