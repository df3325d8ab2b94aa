// SPDX-License-Identifier: MIT
#pragma once

/// Shows the "Command Window" below the main window, with the keyboard in its line.
void show_command_window();
