// SPDX-License-Identifier: MIT
// The sizes of the "File Tree Browser", and the main window's icon.
#include "browsers/notify.h"
#include "ui/file_tree_browser.h"
#include "ui/main_window.h"

namespace {

constexpr int full_width = 1267;
constexpr int full_height = 986;
constexpr int right_of_main_window = 740;
constexpr int below_its_top = 100;

}  // namespace

Message FileTreeFullSize() {
    file_tree_browser().open_sized(0, 0, full_width, full_height);
    return {};
}

Message FileTreeNormalSize() {
    file_tree_browser().open_sized(right_of_main_window, below_its_top, FileTreeBrowser::normal_width,
                                   FileTreeBrowser::normal_height);
    return {};
}

Message FileTreeIconifyMainWindow() {
    main_window().iconify();
    return {};
}

Message FileTreeShowMainWindow() {
    main_window().show();
    return {};
}

void resize_tree(TreeCanvas& canvas, int width, int height) { canvas.set_size(width, height); }
