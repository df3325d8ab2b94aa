// SPDX-License-Identifier: MIT
#include "ui/windows.h"

#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/environment_setup.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/process_information.h"
#include "ui/status_display.h"

namespace {

/// Applies `action` to every window's pointer, in the order of creation.
template <typename Action>
void for_each_popup(Action action) {
    action(Orvik_popup1);
    action(Orvik_popup2);
    action(Orvik_popup4);
    action(Orvik_popup13);
    action(Orvik_popup17);
    action(Orvik_popup18);
}

}  // namespace

void create_windows() {
    Orvik_window1 = std::make_unique<MainWindow>();
    for_each_popup(
        []<typename Window>(std::unique_ptr<Window>& popup) { popup = std::make_unique<Window>(); });
}

void destroy_windows() {
    for_each_popup([](auto& popup) { popup.reset(); });
    Orvik_window1.reset();
}
