// SPDX-License-Identifier: MIT
#include "toolkit/pane/typed_line.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(TypedLine, IsWhatTheKeysTell) {
    const struct {
        std::string typed;
        std::optional<std::string> line;
        bool begun = true;
    } cases[] = {
        {"", "", false},
        {"ls -l", "ls -l"},
        {"ls\rpwd", "pwd"},
        {"ls\r", "", false},
        {"ls\x04", std::nullopt},
        {"ls\r\x04", std::nullopt, false},
        {"a\u00E9\x7F"
         "b",
         "ab"},
        {"\x7F\bx", "x"},
        {"abc\x15rm", "rm"},
        {"abc\x03", "", false},
        {"ab\x1B[Dc", std::nullopt},
        {"ab\x1B[Dc\x15", std::nullopt},
        {"ab\tc\x03ls", "ls"},
        {std::string(5000, 'x'), std::nullopt},
    };
    for (const auto& [typed, line, begun] : cases) {
        TypedLine typed_line;
        typed_line.type(typed);
        EXPECT_EQ(typed_line.text(), line) << typed;
        EXPECT_EQ(typed_line.is_begun(), begun) << typed;
    }
}

}  // namespace
