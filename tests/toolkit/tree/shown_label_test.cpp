// SPDX-License-Identifier: MIT
#include "toolkit/tree/shown_label.h"

#include <gtest/gtest.h>

namespace {

TEST(ShownLabel, WhatIsNoVisibleTextIsWrittenOut) {
    const struct {
        std::string label;
        const char* shown;
    } cases[] = {
        {"plain name.txt", "plain name.txt"},
        {"", ""},
        {"a\nb\tc\x1b[m\x7f", "a^Jb^Ic^[[m^?"},
        {std::string("a\0b", 3), "a^@b"},
        {"\xff\x80z", "\\xff\\x80z"},
        {"caf\xc3\xa9 \xf0\x9f\x98\x80", "caf\xc3\xa9 \xf0\x9f\x98\x80"},
        {"\xc3", "\\xc3"},
        {"\xe2\x80\xaegpj.exe", "\\u202egpj.exe"},
        {"\xef\xbb\xbf"
         "a\xc2\x85",
         "\\ufeffa\\u0085"},
        {"\xd7\xa9\xd7\x9c", "\xd7\xa9\xd7\x9c"},
    };
    for (const auto& [label, shown] : cases) {
        EXPECT_EQ(shown_label(label).toStdString(), shown);
    }
}

}  // namespace
