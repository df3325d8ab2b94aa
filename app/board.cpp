// SPDX-License-Identifier: MIT
// The buttons of "Message Board".
#include "app/notify.h"
#include "app/pane_file.h"
#include "shell/messages.h"
#include "ui/environment_setup.h"
#include "ui/message_board.h"

namespace {

PaneFile board_file;

}  // namespace

Message MessageBoardSave() {
    return board_file.save(message_board(), message_board().text,
                           PaneFile::path(environment_setup().messageboard_directory.text(),
                                          message_board().file_name.text(), "messageboard.txt"));
}

Message MessageBoardClear() {
    clear_window(message_board().text);
    return {};
}
