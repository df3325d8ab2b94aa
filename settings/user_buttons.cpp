// SPDX-License-Identifier: MIT
#include "settings/user_buttons.h"

#include "settings/notify.h"
#include "shell/fill_template.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "shell/text.h"
#include "ui/function_keys.h"
#include "ui/main_window.h"
#include "ui/user_buttons.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr int row_height_shown = 39;  ///< pixels; more where the font is large
constexpr int row_height_hidden = 1;

/// A button of the main window and the fields that define it.
struct UserButton {
    Button MainWindow::*button;
    TextField UserButtons::*label;
    TextField UserButtons::*command;
};

constexpr std::array user_button_table{
    UserButton{&MainWindow::user_button_1, &UserButtons::label_1, &UserButtons::command_1},
    UserButton{&MainWindow::user_button_2, &UserButtons::label_2, &UserButtons::command_2},
    UserButton{&MainWindow::user_button_3, &UserButtons::label_3, &UserButtons::command_3},
    UserButton{&MainWindow::user_button_4, &UserButtons::label_4, &UserButtons::command_4},
    UserButton{&MainWindow::user_button_5, &UserButtons::label_5, &UserButtons::command_5},
    UserButton{&MainWindow::user_button_6, &UserButtons::label_6, &UserButtons::command_6},
};

/// An empty label leaves the old one.
void apply_label(const UserButton& user) {
    const std::string label = (user_buttons().*user.label).text();
    if (!label.empty()) {
        (main_window().*user.button).set_label(label);
    }
}

void show_command(const UserButton& user) {
    const std::string command = (user_buttons().*user.command).text();
    Button& button = main_window().*user.button;
    button.set_tool_tip(command.empty() ? "No command yet: define it in \"User Buttons\"" : command);
    button.set_unset(command.empty());
}

Message press(const UserButton& user) {
    return send_user_command((user_buttons().*user.command).text(), "Button command not defined");
}

/// A command with its placeholder filled, and why it must not be typed.
struct FilledCommand {
    std::string text;
    std::string refusal;
    std::string missing = {};  ///< what there was for the placeholder was nothing
};

FilledCommand fill(const std::string& command) {
    FilledCommand filled;
    const auto selection = [&filled] {
        SelectedText selected = selected_text();
        if (selected.text.empty()) {
            filled.missing = SelectionMessages{}.none;
        } else {
            filled.refusal = selected.refusal;
        }
        return std::move(selected.text);
    };
    const auto tree_name = [&] {
        const std::string name = selected_tree_name();
        filled.missing = name.empty() ? nothing_to_put("???") : "";
        const std::optional<std::string> operand =
            name.empty()
                ? name
                : operand_behind(std::string_view(command).substr(0, command.find("???")), name, user_shell);
        if (!operand) {
            filled.refusal = name_refusal(name);
        }
        return operand.value_or(std::string());
    };
    filled.text = fix_command(command, selection, tree_name);
    if (filled.refusal.empty()) {
        filled.refusal = filled.text.empty() ? "Selection too long or error in command" : filled.missing;
    }
    return filled;
}

}  // namespace

Message send_user_command(const std::string& command, std::string_view empty_message) {
    if (command.empty()) {
        return Message(empty_message);
    }
    const FilledCommand filled = fill(command);
    return filled.refusal.empty() ? send(CommandLine::of_user(filled.text)) : filled.refusal;
}

void set_up_user_buttons_at_startup() {
    SetupUserButtons();
    UserButtonsUpdate();
    for (const UserButton& user : user_button_table) {
        show_command(user);
        (user_buttons().*user.command).on_change([&user] { show_command(user); });
    }
}

void SetupUserButtons() {
    const bool shown = user_buttons().button_window.value() == UserButtons::show_buttons;
    Row& row = main_window().user_button_row;
    row.set_height(shown ? std::max(row_height_shown, row.wanted_height()) : row_height_hidden);
}

void UserButtonsUpdate() {
    for (const UserButton& user : user_button_table) {
        apply_label(user);
    }
}

void UserButtonsFunctionKeys() { function_keys().open(); }

Message UserButton1() { return press(user_button_table[0]); }
Message UserButton2() { return press(user_button_table[1]); }
Message UserButton3() { return press(user_button_table[2]); }
Message UserButton4() { return press(user_button_table[3]); }
Message UserButton5() { return press(user_button_table[4]); }
Message UserButton6() { return press(user_button_table[5]); }

void UserButtonsLabel1() { apply_label(user_button_table[0]); }
void UserButtonsLabel2() { apply_label(user_button_table[1]); }
void UserbuttonsLabel3() { apply_label(user_button_table[2]); }
void UserButtonsLabel4() { apply_label(user_button_table[3]); }
void UserButtonsLabel5() { apply_label(user_button_table[4]); }
void UserButtonsLabel6() { apply_label(user_button_table[5]); }

// Return in a command field accepts the value, and the field holds it already: what presses a button, or a
// function key in the terminal, reads it there.
void UserButtonsCommand1() {}
void UserButtonsCommand2() {}
void UserButtonsCommand3() {}
void UserButtonsCommand4() {}
void UserButtonsCommand5() {}
void UserButtonsCommand6() {}
void FunctionKey6() {}
void FunctionKey7() {}
void FunctionKey8() {}
