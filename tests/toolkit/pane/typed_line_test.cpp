// SPDX-License-Identifier: MIT
#include "toolkit/pane/typed_line.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(TypedLine, IsWhatTheKeysTell) {
    const struct {
        std::string typed;
        std::optional<std::string> line;
    } cases[] = {
        {"ls -l", "ls -l"},
        {"ls\rpwd", "pwd"},
        {"a\u00E9\x7F"
         "b",
         "ab"},
        {"\x7F\bx", "x"},
        {"abc\x15rm", "rm"},
        {"abc\x03", ""},
        {"ab\x1B[Dc", std::nullopt},
        {"ab\x1B[Dc\x15", std::nullopt},
        {"ab\tc\x03ls", "ls"},
        {std::string(5000, 'x'), std::nullopt},
    };
    for (const auto& [typed, line] : cases) {
        TypedLine typed_line;
        typed_line.type(typed);
        EXPECT_EQ(typed_line.text(), line) << typed;
    }
}

}  // namespace
