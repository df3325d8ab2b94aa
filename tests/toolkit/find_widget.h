// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

/// The control that assistive programs know by a name; null when the window has none.
template <typename Widget>
Widget* find_widget(const QWidget* window, const QString& name) {
    for (Widget* widget : window->findChildren<Widget*>()) {
        if (widget->accessibleName() == name) {
            return widget;
        }
    }
    return nullptr;
}
