// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

/// Return, or Enter of the keypad.
inline bool is_return(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}
