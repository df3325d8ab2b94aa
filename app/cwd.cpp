// SPDX-License-Identifier: MIT
// "Cwd:", which shows the shell's directory and takes the user to another one.
#include "app/notify.h"
#include "shell/notify.h"
#include "shell/operands.h"
#include "shell/send.h"
#include "ui/main_window.h"

Message Cwd_text_line() {
    const std::string directory = main_window().cwd.text();
    if (directory.empty()) {
        return "Directory name not specified";
    }
    Message refusal = send(CommandLine("cd").path(path_meant(directory)));
    if (refusal.empty()) {
        main_window().termpane.set_focus();
    }
    return refusal;
}

void leave_cwd() {
    main_window().cwd.restore();
    follow_status_file();  // which may have been written meanwhile
    main_window().termpane.set_focus();
}
