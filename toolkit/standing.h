// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Tells the window manager that a pop-up is a window of its own, whether it is shown already or not (ICCCM,
/// 4.1.2.6; Extended Window Manager Hints, _NET_WM_WINDOW_TYPE): it can be lowered behind the main window,
/// and is no icon when that is one.
void stand_alone(QWidget& popup);

/// Gives the keyboard to a window when one above it has closed, where no window manager does so.
void return_keyboard(QWidget& window);
