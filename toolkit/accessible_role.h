// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

class QWidget;

/// Says what a widget of plain QWidget's class is to assistive programs: a window, a group.
void set_accessible_role(QWidget& widget, QAccessible::Role role);
