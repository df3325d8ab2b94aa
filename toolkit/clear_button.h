// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <QToolButton>

/// Shows a button in the field, as long as there is text, that empties it. Qt leaves it without a name for
/// assistive programs.
inline void add_clear_button(QLineEdit& field) {
    field.setClearButtonEnabled(true);
    field.findChild<QToolButton*>()->setAccessibleName(QStringLiteral("clear"));
}
