// SPDX-License-Identifier: MIT
// The items of the "Setup" and "Browse" menus that open windows.
#include "app/notify.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/environment_setup.h"
#include "ui/message_board.h"
#include "ui/process_information.h"
#include "ui/status_display.h"

void Default_settings_popup() { default_settings().open(); }
void Environment_setup_window() { environment_setup().open(); }
void Open_icon_label() { define_label().open(); }
void Process_display_window() { process_information().open(); }
void SetupMenuStatusDisplay() { status_display().open(); }
void Browse_mess_board() { message_board().open(); }
