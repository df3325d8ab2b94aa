// SPDX-License-Identifier: MIT
#include "terminal/scrollback.h"

#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

namespace terminal {
namespace {

std::string numbered_lines(int first, int end) {
    std::string text;
    for (int i = first; i < end; ++i) {
        text += "line " + std::to_string(i) + "\r\n";
    }
    return text;
}

TEST(Scrollback, RowsKeepTheirNumberAsTheyScroll) {
    Screened at;
    at.terminal.write("zero\r\none\r\ntwo\r\nthree");
    const RowId one = at.terminal.screen_top() + 1;
    EXPECT_EQ(at.row_text(one), "one");
    at.terminal.write("\r\nfour\r\nfive\r\nsix");
    EXPECT_EQ(at.terminal.screen_top(), one + 2);
    EXPECT_EQ(at.row_text(one), "one");
    EXPECT_EQ(at.scrollback(), "zero|one|two");
    EXPECT_EQ(at.row_text(at.terminal.first_row() - 1), "");
    EXPECT_EQ(at.row_text(at.terminal.end_row()), "");
}

TEST(Scrollback, KeepsStylesLinksClustersAndWideCharacters) {
    Screened at;
    at.terminal.write("a\033[31mb漢\033[0me\u0301 \033]8;;http://x/\033\\l\033]8;;\033\\\033[1\"qg");
    const RowId top = at.terminal.screen_top();
    const auto before = at.terminal.row(top).cells;
    const std::vector<Cell> on_screen(before.begin(), before.end());
    at.terminal.write("\r\n\n\n\n");
    ASSERT_LT(top, at.terminal.screen_top());
    const auto after = at.terminal.row(top).cells;
    EXPECT_EQ(std::vector<Cell>(after.begin(), after.end()), on_screen);
    EXPECT_EQ(at.row_text(top), "ab漢e\u0301 lg");
}

TEST(Scrollback, KeepsRowsAsTheyWereUpToItsLimit) {
    struct Case {
        const char* name;
        std::size_t limit;
        std::string input;
        const char* scrollback;
        const char* screen;
    };
    const Case cases[] = {
        {"wrapped rows and blank ones", 100, "0123456789abc\r\n\r\n  x\033[5Cy\r\n012345678漢\r\n\n\n\n",
         "0123456789>|abc||  x     y|012345678>|漢", "|||"},
        {"scrolling below a top margin", 100, "a\r\nb\r\nc\r\nd\033[2;4r\033[4H\n\n\033[1;3r\033[3H\ne", "a",
         "d||e|"},
        {"the oldest go", 5, numbered_lines(0, 20) + "0123456789abcdefghijABCDEFGHIJxyz\r\n\r\n",
         "line 17|line 18|line 19|0123456789>|abcdefghij>", "ABCDEFGHIJ>|xyz||"},
        {"none", 0, numbered_lines(0, 9) + "0123456789abcdefghij0123456789abcdefghij0123456789", "",
         "abcdefghij>|0123456789>|abcdefghij>|0123456789"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened at({10, 4}, row.limit);
        at.terminal.write(row.input);
        EXPECT_EQ(at.scrollback(), row.scrollback);
        EXPECT_EQ(at.screen(), row.screen);
    }
}

// What stands in the first row after it was emptied is not the end of the line that has scrolled off.
TEST(Scrollback, ErasingTheFirstRowEndsTheLineAboveIt) {
    for (const char* const erasure :
         {"\033[J", "\033[2J", "\033[4H\033[1J", "\033[K", "\033[2K", "\033[L", "\033[M", "\033[T", "\033#8",
          "\033[1;1;1;10$z", "\033[88;1;1;1;10$x", "\033c", "\033[99X"}) {
        Screened at;
        at.terminal.write(std::string(45, 'x') + "\033[H" + erasure);
        EXPECT_EQ(at.scrollback(), "xxxxxxxxxx") << erasure + 1;
    }
}

TEST(Scrollback, IsErasedByItself) {
    Screened at;
    at.terminal.write(numbered_lines(0, 9) + "\033[3J");
    EXPECT_EQ(at.scrollback(), "");
    EXPECT_EQ(at.screen(), "line 6|line 7|line 8|");
    at.terminal.write("x\r\n");
    EXPECT_EQ(at.scrollback(), "line 6");
}

TEST(Scrollback, LineInManyPiecesIsOneLine) {
    Screened at({10, 4}, 100'000);
    std::string text;
    for (int i = 0; i < 200'000; ++i) {
        text += static_cast<char>('a' + i % 26);
    }
    at.terminal.write(text + "\r\nend");
    EXPECT_EQ(at.all_text(), text + "\nend");
    for (const Size size : {Size{7, 4}, Size{93, 40}}) {
        at.terminal.resize(size);
        EXPECT_EQ(at.all_text(), text + "\nend");
    }
}

TEST(Scrollback, MillionRowsCanBeKept) {
    Recorder recorder;
    Terminal terminal({{90, 24}, 1'000'000}, recorder);
    const std::string lines = numbered_lines(0, 1'000);
    for (int i = 0; i < 1'100; ++i) {
        terminal.write(lines);
    }
    EXPECT_EQ(terminal.screen_top() - terminal.first_row(), 1'000'000);
    EXPECT_LT(terminal.scrollback_memory(), 60'000'000U);
    terminal.resize({5, 24}, {});
    EXPECT_GT(terminal.screen_top() - terminal.first_row(), 1'900'000);
    const Row row = terminal.row(terminal.first_row() + 1'000'001);
    EXPECT_FALSE(row.cells.empty());
}

}  // namespace
}  // namespace terminal
