// SPDX-License-Identifier: MIT
// The "Help" menu's texts.
#include "app/notify.h"
#include "shell/process.h"
#include "ui/help_window.h"

#include <fmt/format.h>

namespace {

void show_help(std::string_view page) {
    const std::string path = fmt::format("{}/help/{}", orvik_home, page);
    const bool found = help_window().text.show_page(path);
    help_window().set_left_footer(found ? "" : fmt::format("Help text not found: {}", path));
    help_window().open();
}

}  // namespace

void To_get_started() { show_help("get_started.html"); }
void User_guide() { show_help("user_guide.html"); }
void HelpMenuButtons() { show_help("buttons.html"); }
