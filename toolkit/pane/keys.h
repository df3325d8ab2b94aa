// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/key_event.h"

#include <Qt>

class QKeyEvent;

/// A key event of the window system in the terminal's terms.
KeyEvent to_key_event(const QKeyEvent& event);
/// Modifiers of any input event.
terminal::Modifiers to_modifiers(Qt::KeyboardModifiers modifiers);
