// SPDX-License-Identifier: MIT
#include "app/termpane.h"

#include "app/status.h"
#include "ui/main_window.h"

namespace {

/// Sees every key before the terminal pane does. A released Return means that a command has been given: the
/// shell will have written its new state soon.
bool termpane_event_proc(KeyEvent& event) {
    const bool is_return = event.key == terminal::Key::enter || event.key == terminal::Key::keypad_enter;
    if (event.kind == KeyEvent::Kind::release && is_return) {
        SetupTimer(refresh_after_command);
    }
    return false;
}

}  // namespace

void interpose_terminal_keys() { notify_interpose_event_func(main_window().termpane, termpane_event_proc); }
