// SPDX-License-Identifier: MIT
#include "shell/messages.h"

#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <cerrno>

#include <gtest/gtest.h>

namespace {

struct Window : CommandFrame {
    Window() : CommandFrame("Window") {}
    TextPane text{panel, "Window text"};
};

TEST(Messages, AreAppendedWhereverTheInsertionPointIs) {
    const Frame base{"Base"};
    Window window;
    display_message(window.text, "one\n");
    textsw_set_insertion_point(window.text, 0);
    display_message(window.text, "two\n");
    EXPECT_EQ(window.text.text(), "one\ntwo\n");
    clear_window(window.text);
    EXPECT_EQ(window.text.text(), "");
}

TEST(Messages, TheOldestLinesAreDropped) {
    const Frame base{"Base"};
    Window window;
    window.text.set_line_limit(3);
    for (const char* line : {"one\n", "two\nthree\n", "four\n"}) {
        display_message(window.text, line);
    }
    EXPECT_EQ(window.text.text(), "two\nthree\nfour\n");
}

TEST(Messages, ErrorNumbersHaveTheirTexts) {
    const Frame base{"Base"};
    Window window;
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
