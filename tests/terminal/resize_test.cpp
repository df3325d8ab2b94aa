// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <array>
#include <random>

#include <gtest/gtest.h>

namespace terminal {
namespace {

struct Case {
    const char* name;
    std::string input;
    std::vector<Size> sizes;  ///< from 10 columns by 4 rows on
    const char* scrollback;
    const char* screen;
    const char* cursor;
};

const std::string six = "a\r\nb\r\nc\r\nd\r\ne\r\nf";

const Case cases[] = {
    {"NarrowerWraps", "0123456789", {{4, 4}}, "", "0123>|4567>|89|", "2,2"},
    {"AndBack", "0123456789", {{4, 4}, {10, 4}}, "", "0123456789|||", "0,9+"},
    {"WiderJoins", "0123456789abcde", {{20, 4}}, "", "0123456789abcde|||", "0,15"},
    {"ToItsLengthWrapIsPending", "01234", {{5, 4}}, "", "01234|||", "0,4+"},
    {"PendingWrapIsResolved", "0123456789", {{12, 4}}, "", "0123456789|||", "0,10"},
    {"NoRoomScrollsOff",
     "one\r\n0123456789\r\ntwo\r\nxyz",
     {{3, 4}},
     "one|012>|345>",
     "678>|9|two|xyz",
     "3,2+"},
    {"LowerScrollsOff", six, {{10, 2}}, "a|b|c|d", "e|f", "1,1"},
    {"LowerGivesUpBlankRowsFirst", "a\r\nb", {{10, 2}}, "", "a|b", "1,1"},
    {"HigherBringsBack", six, {{10, 5}}, "a", "b|c|d|e|f", "4,1"},
    {"HigherThanAllThereIs", six, {{10, 8}}, "", "a|b|c|d|e|f||", "5,1"},
    {"NothingComesBackUnasked", six + "\033[H\033[J", {{9, 4}}, "a|b", "|||", "0,0"},
    {"DeletedRowPartsItsLine",
     "0123456789a\r\nb\r\nc\r\nd\033[H\033[M",
     {{20, 4}},
     "0123456789",
     "b|c|d|",
     "0,0"},
    {"LowerAndBack", six, {{10, 1}, {10, 6}}, "", "a|b|c|d|e|f", "5,1"},
    {"FlowsAcrossTheEdge",
     "0123456789abcdefghijABCDE\r\nx\r\ny",
     {{40, 4}},
     "",
     "0123456789abcdefghijABCDE|x|y|",
     "2,1"},
    {"WideCharactersMoveWhole", "漢字漢字漢", {{5, 4}}, "", "漢字>|漢字>|漢|", "2,2"},
    {"WideCharactersAndBack", "漢字漢字漢", {{5, 4}, {3, 6}, {10, 4}}, "", "漢字漢字漢|||", "0,9+"},
    {"PaddingBeforeAWideCharacterIsNoText", "012345678漢x", {{20, 4}}, "", "012345678漢x|||", "0,12"},
    {"CursorFollowsItsText", "0123456789abcdef\033[1;6H", {{4, 4}}, "", "0123>|4567>|89ab>|cdef", "1,1"},
    {"CursorInABlankRow", "a\r\n\r\n", {{5, 4}}, "", "a|||", "2,0"},
    {"CursorBeyondTheText", "ab\033[1;8H", {{5, 4}}, "", "ab|||", "0,4"},
    {"ErasedEndOfALineIsGivenUp", "0123456789a\033[H\033[?Jb", {{12, 1}}, "", "b", "0,1"},
    {"ColoursFlow", "01234567\033[41m89", {{9, 4}}, "", "012345678>|9||", "1,1"},
};

TEST(Resize, LeavesTextAndCursor) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened at;
        at.terminal.write(row.input);
        const std::string text = at.all_text();
        for (const Size size : row.sizes) {
            at.terminal.resize(size);
            EXPECT_EQ(at.terminal.size(), size);
        }
        EXPECT_EQ(at.all_text(), text);
        EXPECT_EQ(at.scrollback(), row.scrollback);
        EXPECT_EQ(at.screen(), row.screen);
        EXPECT_EQ(at.cursor(), row.cursor);
    }
}

TEST(Resize, AnchorsMoveWithTheirText) {
    Screened at;
    at.terminal.write("first\r\n0123456789abcdefghij\r\nx\r\ny\r\nz");
    ASSERT_EQ(at.scrollback(), "first|0123456789>");
    const RowId first = at.terminal.first_row();
    // "r" of the first line, "7" in the scrollback, "d" on the screen, "x", and behind "j".
    std::array<Position, 5> anchors = {
        {{first, 2}, {first + 1, 7}, {first + 2, 3}, {first + 3, 0}, {first + 2, 10}}};
    at.terminal.resize({6, 3}, anchors);
    const auto at_anchor = [&at](Position anchor) {
        return at.row_text(anchor.row).substr(static_cast<std::size_t>(anchor.column));
    };
    EXPECT_EQ(at.row_text(anchors[0].row), "first");
    EXPECT_EQ(anchors[0].column, 2);
    EXPECT_EQ(at_anchor(anchors[1]), "789ab");
    EXPECT_EQ(at_anchor(anchors[2]), "defgh");
    EXPECT_EQ(at_anchor(anchors[3]), "x");
    EXPECT_EQ(at.row_text(anchors[4].row), "ij");
    EXPECT_EQ(anchors[4].column, 2);
}

TEST(Resize, KeepsTheRowOfACursorAboveTheText) {
    struct {
        Size size;
        const char* screen;
        const char* cursor;
    } const sizes[] = {{{10, 2}, "bbbb|cccc", "0,1"}, {{3, 2}, "bbb>|b", "0,1"}, {{10, 1}, "bbbb", "0,1"}};
    for (const auto& [size, screen, cursor] : sizes) {
        Screened at;
        at.terminal.write("aaaa\r\nbbbb\r\ncccc\r\ndddd\033[2;2H");
        at.terminal.resize(size);
        EXPECT_EQ(at.screen(), screen);
        EXPECT_EQ(at.cursor(), cursor);
    }
}

TEST(Resize, AlternateScreenIsCutAndPrimaryFlows) {
    Screened at;
    at.terminal.write("0123456789abc\033[?1049h\033[4;1Hbottom\033[1;8Htop\033[4;7H");
    at.terminal.resize({8, 2});
    EXPECT_EQ(at.screen(), "|bottom");
    EXPECT_EQ(at.cursor(), "1,6");
    at.terminal.resize({20, 4});
    at.terminal.write("\033[?1049l!");
    EXPECT_EQ(at.screen(), "0123456789abc!|||");
}

TEST(Resize, NarrowingDropsNothingFromAFullScrollback) {
    Screened at({10, 4}, 20);
    for (int i = 0; i < 40; ++i) {
        at.terminal.write("line " + std::to_string(i) + "\r\n");
    }
    const std::string before = at.all_text();
    at.terminal.resize({3, 4});
    at.terminal.resize({10, 4});
    EXPECT_EQ(at.all_text(), before);
    EXPECT_EQ(at.terminal.screen_top() - at.terminal.first_row(), 20);
    at.terminal.resize({3, 4});
    for (int i = 0; i < 100; ++i) {
        at.terminal.write("x\r\n");
    }
    EXPECT_EQ(at.terminal.screen_top() - at.terminal.first_row(), 20);
}

TEST(Resize, TabStopsAndMarginsFitTheNewSize) {
    Screened at;
    at.terminal.write("\033[2;3r");
    at.terminal.resize({30, 3});
    at.terminal.write("\033[1;10H\tx\033[3;1H\n\ny");
    EXPECT_EQ(at.screen(), "||y");
    EXPECT_EQ(at.scrollback(), "                x|");
}

// Any walk through sizes leaves the text as it was, and the cursor where it was in it.
TEST(Resize, RandomWalkKeepsAllText) {
    std::mt19937 random(7);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    Screened at({30, 8}, 100'000);
    for (int i = 0; i < 300; ++i) {
        at.terminal.write(below(3) == 0 ? "" : "\r\n");
        for (int word = below(20); word >= 0; --word) {
            at.terminal.write(below(4) == 0 ? "漢字" : below(5) == 0 ? "\033[31mré\u0301d\033[0m" : "word ");
        }
        const std::string text = at.all_text();
        const std::string line = line_to_cursor_text(at.terminal);
        at.terminal.resize({2 + below(60), 1 + below(20)});
        ASSERT_EQ(at.all_text(), text) << "after line " << i;
        ASSERT_EQ(line_to_cursor_text(at.terminal), line) << "after line " << i;
    }
}

}  // namespace
}  // namespace terminal
