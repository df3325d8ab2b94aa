// SPDX-License-Identifier: MIT
// The main window's buttons for its size and for the terminal's text.
#include "app/notify.h"
#include "shell/status.h"
#include "ui/main_window.h"

namespace {

constexpr int wide_width = 1130;
constexpr int tall_height = 840;

/// The shell's new line length shows in what it reports next.
Message after_resize() {
    SetupTimer(refresh_after_command);
    textsw_possibly_normalize(main_window().termpane);
    return {};
}

}  // namespace

Message Set_wide_screen() {
    main_window().resize(wide_width, main_window().height());
    return after_resize();
}

Message Set_normal_width() {
    main_window().resize(MainWindow::normal_width, MainWindow::normal_height);
    return after_resize();
}

Message Set_small_font() {
    main_window().resize(main_window().width(), tall_height);
    return after_resize();
}

Message Set_large_font() {
    main_window().termpane.clear();
    return {};
}
