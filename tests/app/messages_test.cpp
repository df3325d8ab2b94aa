// SPDX-License-Identifier: MIT
#include "app/messages.h"

#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <cerrno>

#include <gtest/gtest.h>

namespace {

struct Window : CommandFrame {
    Window() : CommandFrame("Window") {}
    TextPane text{panel, "Window text"};
};

class Messages : public testing::Test {
  protected:
    Frame base{"Base"};
    Window window;
};

TEST_F(Messages, AreAppendedWhereverTheInsertionPointIs) {
    display_message(window.text, "one\n");
    textsw_set_insertion_point(window.text, 0);
    display_message(window.text, "two\n");
    EXPECT_EQ(window.text.text(), "one\ntwo\n");
    textsw_set_insertion_point(window.text, 0);
    show_caret(window.text);
    textsw_insert(window.text, "three");
    EXPECT_EQ(window.text.text(), "one\ntwo\nthree");
    clear_window(window.text);
    EXPECT_EQ(window.text.text(), "");
}

TEST_F(Messages, ErrorNumbersHaveTheirTexts) {
    const std::pair<int, const char*> cases[] = {
        {ENOTEMPTY, "Directory not empty"},           {ENOTDIR, "Not a directory"},
        {ENOENT, "Directory does not exists"},        {EROFS, "Read only file system"},
        {ENAMETOOLONG, "Path name too long"},         {EINVAL, "Can not delete current directory"},
        {EBUSY, "Directory used by another process"}, {EACCES, "No search or write permissions"},
        {EIO, "No search or write permissions"},  // no text of its own: the footer stays
    };
    for (const auto& [error, text] : cases) {
        display_error_message(window, error);
        EXPECT_EQ(window.left_footer(), text) << error;
    }
}

}  // namespace
