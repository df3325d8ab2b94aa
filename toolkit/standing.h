// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

class QWidget;

/// How a pop-up stands to the main window.
enum class Standing : std::uint8_t {
    owned,  ///< above it, and made an icon with it by the window manager
    alone,  ///< a window of its own
};

/// Tells the window manager how a pop-up stands, whether it is shown already or not (ICCCM, 4.1.2.6; Extended
/// Window Manager Hints, _NET_WM_WINDOW_TYPE).
void set_standing(QWidget& popup, Standing standing);
