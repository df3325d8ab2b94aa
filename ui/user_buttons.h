// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "User Buttons": the labels and commands of the buttons above the terminal.
struct UserButtons : CommandFrame {
    static constexpr int show_buttons = 1;

    UserButtons() : CommandFrame("User Buttons") {
        button_window.set_value(show_buttons);
        for (TextField* label : {&label_1, &label_2, &label_3, &label_4, &label_5, &label_6}) {
            label->set_display_length(12);
        }
        command_1.set_display_length(48);
        update.set_tool_tip("put the labels on the buttons");
        function_keys.set_tool_tip("define the commands of the keys F7, F8 and F9");
    }

    Row row_settings{panel};
    Choice button_window{row_settings, "Button Window", {"Hide", "Show"}, SetupUserButtons};
    Stretch before_update{row_settings};
    Button update{row_settings, "Update", UserButtonsUpdate};

    Row columns{panel};
    Panel labels{columns};
    TextField label_1{labels, "Label1:", UserButtonsLabel1};
    TextField label_2{labels, "Label2:", UserButtonsLabel2};
    TextField label_3{labels, "Label3:", UserbuttonsLabel3};
    TextField label_4{labels, "Label4:", UserButtonsLabel4};
    TextField label_5{labels, "Label5:", UserButtonsLabel5};
    TextField label_6{labels, "Label6:", UserButtonsLabel6};

    Panel commands{columns};
    TextField command_1{commands, "Command1:", UserButtonsCommand1};
    TextField command_2{commands, "Command2:", UserButtonsCommand2};
    TextField command_3{commands, "Command3:", UserButtonsCommand3};
    TextField command_4{commands, "Command4:", UserButtonsCommand4};
    TextField command_5{commands, "Command5:", UserButtonsCommand5};
    TextField command_6{commands, "Command6:", UserButtonsCommand6};

    Row other_windows{panel};
    Stretch before_function_keys{other_windows};
    Button function_keys{other_windows, "Function Keys", UserButtonsFunctionKeys};
};

inline std::unique_ptr<UserButtons> Orvik_popup6;
inline UserButtons& user_buttons() { return *Orvik_popup6; }
