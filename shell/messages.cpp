// SPDX-License-Identifier: MIT
#include "shell/messages.h"

#include "toolkit/frame.h"
#include "toolkit/text_pane.h"
#include "ui/message_board.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace {

struct ErrorText {
    int error;
    std::string_view text;
};

constexpr std::array error_texts{
    ErrorText{ENOTEMPTY, "Directory not empty"},
    ErrorText{ENOTDIR, "Not a directory"},
    ErrorText{ENOENT, "Directory does not exists"},
    ErrorText{EROFS, "Read only file system"},
    ErrorText{ENAMETOOLONG, "Path name too long"},
    ErrorText{EINVAL, "Can not delete current directory"},
    ErrorText{EBUSY, "Directory used by another process"},
    ErrorText{EACCES, "No search or write permissions"},
};

}  // namespace

void display_message(TextPane& pane, std::string_view text) {
    show_caret(pane);
    textsw_insert(pane, text);
    textsw_possibly_normalize(pane);
}

void report(std::string_view text) { display_message(message_board().text, text); }

void show_caret(TextPane& pane) {
    textsw_set_insertion_point(pane, textsw_infinity);
    textsw_possibly_normalize(pane);
}

void clear_window(TextPane& pane) { textsw_reset(pane); }

void display_error_message(Frame& frame, int error) {
    const auto* const found = std::find_if(error_texts.begin(), error_texts.end(),
                                           [&](const ErrorText& known) { return known.error == error; });
    if (found != error_texts.end()) {
        frame.set_left_footer(found->text);
    }
}
