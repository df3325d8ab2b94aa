// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>
#include <string_view>

// The row of user buttons in the main window, and the commands that they and the function keys type.

/// Types a command that the user has defined, its placeholder filled, into the shell. Returns why not:
/// `empty_message` when there is no command.
[[nodiscard]] Message send_user_command(const std::string& command, std::string_view empty_message);

/// Shows or hides the row, labels the buttons and gives them their tool tips, as "User Buttons" says.
void set_up_user_buttons_at_startup();
