// SPDX-License-Identifier: MIT
// "About": the version, and what this instance runs on.
#include "app/notify.h"
#include "settings/setup_file.h"
#include "shell/process.h"
#include "toolkit/platform.h"
#include "toolkit/selection.h"
#include "ui/about_window.h"
#include "ui/main_window.h"

#include <fmt/format.h>
#include <fmt/printf.h>

namespace {

std::string about_text() {
    const TerminalPane& terminal = main_window().termpane;
    const std::string setup_file = loaded_setup_file();
    std::string text = fmt::sprintf("Orvik Command Tool %.2f\n\n", version);
    const auto line = [&](std::string_view what, std::string_view value) {
        text += fmt::format("{:<15}{}\n", what, value);
    };
    line("Toolkit:", toolkit_version());
    line("X server:", x_server_version());
    line("Host:", host_own);
    line("User:", user_name);
    line("Shell:", shell_name);
    line("Process ID:", fmt::to_string(pid));
    line("Terminal:", fmt::format("{} columns, {} rows", terminal.columns(), terminal.rows()));
    line("Installed in:", orvik_home);
    line("Started in:", startup_dir);
    line("Setup file:", setup_file.empty() ? "none loaded" : setup_file);
    return text;
}

}  // namespace

void About_window() {
    about_window().text.set_text(about_text());
    about_window().set_left_footer("");
    about_window().open();
}

Message AboutCopy() {
    copy_to_clipboard(about_window().text.text());
    return "Copied to the clipboard";
}
