// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Command Window": a line for commands that floats beside the terminal.
struct CommandWindow : CommandFrame {
    CommandWindow() : CommandFrame("Command Window") {
        command.set_display_length(60);
        command.take_pasted_commands();
        push.set_tool_tip("change to the selected directory and remember this one (pushd)");
        pop.set_tool_tip("go back to the directory remembered last (popd)");
        remove_button.set_tool_tip("remove the files named in the line (rm)");
        run.set_tool_tip("run the line without filing it in the history");
        last.set_tool_tip("fetch the last command");
        get.set_tool_tip("fetch the selection");
        clear.set_tool_tip("empty the line");
        copy.set_tool_tip("move the command that is being typed in the terminal here");
        for (Button* button : {&push, &pop, &remove_button, &run, &last, &get, &clear, &copy}) {
            button->leave_focus();
        }
    }

    TextField command{panel, "C:", CommandWindowCommandLine};
    Row buttons{panel};
    Button push{buttons, "Push", CommandWindowPush};
    Button pop{buttons, "Pop", CommandWindowPop};
    Button remove_button{buttons, "Remove", CommandWindowRemove};
    Button run{buttons, "Run", CommandWindowRun};
    Button last{buttons, "Last", CommandWindowLast};
    Button get{buttons, "Get", CommandWindowGet};
    Button clear{buttons, "Clear", CommandWindowClearButton};
    Button copy{buttons, "Copy", CommandWindowCopy};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<CommandWindow> Orvik_popup47;
inline CommandWindow& command_window() { return *Orvik_popup47; }
