// SPDX-License-Identifier: MIT
#include "app/selection_commands.h"

#include "app/notify.h"
#include "shell/process.h"
#include "shell/send.h"
#include "tests/support/recorded_windows.h"
#include "ui/default_settings.h"
#include "ui/notebook.h"
#include "ui/text_editor_setup.h"

namespace {

class SelectionCommands : public RecordedWindows {};

const std::string for_keys = "No selection made";
const std::string for_buttons = "No selection made or selection too long";
const std::string with_controls = "Selection holds control characters";
const std::string list = "ls -aF\n";

struct Case {
    const char* name;
    Message (*action)();
    std::string selection;
    std::string typed;
    std::string answer;
};

const Case cases[] = {
    {"directory up", Directory_up_button, "", "cd ..\n" + list},
    {"directory down", Directory_down_button, "a b\nc", "cd \"a b\"\n" + list},
    {"directory down, a name to quote", Directory_down_button, "$(id)", "cd '$(id)'\n" + list},
    {"directory down, an option", Directory_down_button, "-x", "cd ./-x\n" + list},
    {"directory down, nothing", Directory_down_button, "", "", for_buttons},
    {"directory down, a tab", Directory_down_button, "a\tb", "", with_controls},
    {"execute", Execute_FG_button, "a b", "\"a b\"\n"},
    {"execute, a tab", Execute_FG_button, "a\tb", "", with_controls},
    {"execute, 1000 characters", Execute_FG_button, std::string(1000, 'x'), "", for_buttons},
    {"execute, too long", Execute_FG_button, std::string(1001, 'x'), "", "Selection too long"},
    {"execute in background", Execute_BG_button, "prog", "\"prog\" &\n"},
    {"copy", OrvikWindowCopyButton, "ls\t-l\nrm", "ls -l"},
    {"copy, nothing", OrvikWindowCopyButton, "\n", "", for_buttons},
    {"F1", run_selection, "ls | wc\nrm", "ls | wc\n"},
    {"F1, nothing", run_selection, "", "", for_keys},
    {"F1, carriage return", run_selection, "ls\rrm", "", with_controls},
    {"F2", run_selection_in_background, "make", "make &\n"},
    {"F3", edit_selected_file, "a b", "gedit a\\ b &\n"},
    {"F3, a name to quote", edit_selected_file, "a`b", "gedit 'a`b' &\n"},
    {"F3, a tab", edit_selected_file, "a\tb", "", with_controls},
    {"F4", go_directory_up, "x", "cd ..\n" + list},
    {"F5", go_to_selected_directory, "/usr", "cd /usr\n" + list},
    {"F5, a name to quote", go_to_selected_directory, "a;b", "cd 'a;b'\n" + list},
    {"F5, a tab", go_to_selected_directory, "a\tb", "", "Selection holds control characters"},
    {"directory down, a tab", Directory_down_button, "a\tb", "", "Selection holds control characters"},
    {"F3, a tab", edit_selected_file, "a\tb", "", "Selection holds control characters"},
    {"F5, home", go_to_selected_directory, "~/src", "cd /home/me/src\n" + list},
    {"F5, a tab", go_to_selected_directory, "a\tb", "", with_controls},
    {"F6", type_selection, "half", "half"},
    {"Insert", insert_selection, "half\nother", "half"},
    {"^O", recall_by_selection, "make", "!make\n"},
    {"^O, nothing", recall_by_selection, "", "", "No selection"},
};

TEST_F(SelectionCommands, TypeTheFirstLineOrSayWhyNot) {
    constexpr int gedit = 4;
    text_editor_setup().text_editor.set_value(gedit);
    const std::string home_before = std::getenv("HOME");
    setenv("HOME", "/home/me", 1);
    for (const Case& row : cases) {
        set_selection(row.selection);
        EXPECT_EQ(row.action(), row.answer) << row.name;
        EXPECT_EQ(typed(), row.typed) << row.name;
    }
    setenv("HOME", home_before.c_str(), 1);
    text_editor_setup().text_editor.set_value(TextEditorSetup::user_defined);
    text_editor_setup().user_editor.set_text("");
    set_selection("a b");
    EXPECT_EQ(edit_selected_file(), "User editor not specified");
    EXPECT_EQ(typed(), "");
}

TEST_F(SelectionCommands, TypeNoLineThatKshMightCut) {
    const std::string longest(1000, 'x');
    EXPECT_EQ(type_line(longest + "x"), "");
    user_shell.family = ShellFamily::ksh;
    EXPECT_EQ(type_line(longest), "");
    EXPECT_EQ(type_line(longest + "x"), "Command is too long for the shell");
    user_shell.family = ShellFamily::bash;
    EXPECT_EQ(typed(), longest + "x\n" + longest + "\n");
}

TEST_F(SelectionCommands, ALineMayBeginWithALineFeedAndIsRemembered) {
    EXPECT_EQ(send(CommandLine("make").path("a b").behind_line_feed(), Remember::last_command), "");
    EXPECT_EQ(typed(), "\nmake 'a b'\n");
    EXPECT_EQ(default_settings().last_command.text(), "make 'a b'");
}

TEST_F(SelectionCommands, TheNotebookTakesTheSelection) {
    set_selection("first\nsecond");
    CopyToMessageBoard();
    CopyToMessageBoard();
    EXPECT_EQ(notebook().text.text(), "first\n\nfirst\n\n");
    EXPECT_EQ(typed(), "");
}

TEST_F(SelectionCommands, TheWindowTakesItsSizes) {
    const auto size = [] { return std::pair(main_window().width(), main_window().height()); };
    Set_wide_screen();
    EXPECT_EQ(size(), std::pair(1130, 550));
    Set_small_font();
    EXPECT_EQ(size(), std::pair(1130, 840));
    Set_normal_width();
    EXPECT_EQ(size(), std::pair(735, 550));
}

}  // namespace
