// SPDX-License-Identifier: MIT
#include "terminal/text.h"

#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

namespace terminal {
namespace {

/// A position as row and column from the first row on.
Position position(const Screened& at, RowId row, int column) {
    return {at.terminal.first_row() + row, column};
}

Range range(const Screened& at, Position begin, Position end) {
    return {position(at, begin.row, begin.column), position(at, end.row, end.column)};
}

TEST(Text, BetweenTwoPlaces) {
    Screened at;
    at.terminal.write("0123456789abc  \r\n\r\n漢字x\r\nlast line");
    struct Case {
        const char* name;
        Range range;
        const char* text;
    };
    const Case cases[] = {
        {"within a row", {{0, 2}, {0, 4}}, "23"},
        {"across a wrap", {{0, 8}, {1, 2}}, "89ab"},
        {"across line ends", {{1, 1}, {3, 2}}, "bc\n\n漢"},
        {"from the middle of a wide character", {{3, 1}, {3, 3}}, "漢字"},
        {"no blanks at the end", {{1, 0}, {1, 9}}, "abc"},
        {"everything", {{0, 0}, {99, 0}}, "0123456789abc\n\n漢字x\nlast line"},
        {"nothing", {{1, 2}, {1, 2}}, ""},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(text_between(at.terminal, range(at, row.range.begin, row.range.end)), row.text) << row.name;
    }
}

TEST(Text, BlanksAtTheEndOfAWrappedLineAreNone) {
    Screened at;
    at.terminal.write("x         y\b\033[K\r\nz");
    EXPECT_EQ(at.screen(), "x>||z|");
    EXPECT_EQ(at.all_text(), "x\nz");
}

TEST(Text, LogicalLineReachesAcrossWraps) {
    Screened at;
    at.terminal.write("x\r\n0123456789abcdefghijABC\r\ny\r\nz");
    for (const RowId row : {1, 2, 3}) {
        EXPECT_EQ(logical_line(at.terminal, at.terminal.first_row() + row), range(at, {1, 0}, {3, 10}));
    }
    EXPECT_EQ(logical_line(at.terminal, at.terminal.first_row()), range(at, {0, 0}, {0, 10}));
}

TEST(Text, WordAtAPlace) {
    Screened at({20, 6});
    at.terminal.write("ls -l /tmp/a_b.c:12 (größe) x=1\r\n漢字 e\u0301te\u0301;;");
    struct Case {
        const char* name;
        Position at;
        const char* word;
    };
    const Case cases[] = {
        {"plain", {0, 1}, "ls"},
        {"option", {0, 3}, "-l"},
        {"path", {0, 9}, "/tmp/a_b.c:12"},
        {"letters beyond ASCII", {1, 2}, "größe"},
        {"one punctuation character", {1, 0}, "("},
        {"assignment", {1, 9}, "x=1"},
        {"wide by its tail", {2, 1}, "漢字"},
        {"clusters", {2, 6}, "e\u0301te\u0301"},
        {"one of two", {2, 8}, ";"},
    };
    for (const Case& row : cases) {
        const Range word = word_at(at.terminal, position(at, row.at.row, row.at.column));
        EXPECT_EQ(text_between(at.terminal, word), row.word) << row.name;
    }
    EXPECT_EQ(word_at(at.terminal, position(at, 2, 12)), range(at, {2, 10}, {2, 20}));
}

TEST(Text, WordReachesAcrossAWrap) {
    Screened at;
    at.terminal.write("ab 0123456789abcd ef");
    EXPECT_EQ(word_at(at.terminal, position(at, 0, 5)), range(at, {0, 3}, {1, 7}));
    EXPECT_EQ(word_at(at.terminal, position(at, 1, 1)), range(at, {0, 3}, {1, 7}));
}

TEST(Text, LineToCursor) {
    struct Case {
        const char* name;
        const char* input;
        const char* text;
        const char* behind = "";
    };
    const Case cases[] = {
        {"plain", "out\r\n$ ls", "$ ls"},
        {"blanks before the cursor", "$ \033[2C", "$   "},
        {"written blanks", "$ ls  ", "$ ls  "},
        {"cursor within the text", "$ ls -l\033[3D", "$ ls", " -l"},
        {"cursor on an earlier row", "$ 0123456789abc  \033[A", "$ 01234", "56789abc"},
        {"prompt at the right edge", "$ ls  me>\r\033[4C", "$ ls"},
        {"the same behind more text", "$ ls  me>\r\033[3C", "$ l", "s"},
        {"command with a gap that fills the row", "$ e 'a  b'\r\033[2C", "$ ", "e 'a  b'"},
        {"gap in an earlier row", "$ e 'a  b' 12345678\r\033[A\033[2C", "$ ", "e 'a  b' 12345678"},
        {"wrapped", "$ 0123456789abc", "$ 0123456789abc"},
        {"wrapped into the scrollback", "$ 0123456789abcdefghijABCDEFGHIJ0123456789abcdefghij",
         "$ 0123456789abcdefghijABCDEFGHIJ0123456789abcdefghij"},
        {"a wrap pending", "$ 23456789", "$ 23456789"},
        {"behind a line feed", "$ ls\r\n", ""},
        {"wide characters", "$ 漢字漢字漢", "$ 漢字漢字漢"},
    };
    for (const Case& row : cases) {
        Screened at;
        at.terminal.write(row.input);
        EXPECT_EQ(line_to_cursor_text(at.terminal), row.text) << row.name;
        EXPECT_EQ(line_behind_cursor_text(at.terminal), row.behind) << row.name;
    }
    Screened at;
    at.terminal.write("x\r\n0123456789");
    EXPECT_EQ(line_to_cursor(at.terminal), range(at, {1, 0}, {1, 10}));
}

TEST(Find, GoesThroughScreenAndScrollback) {
    Screened at;
    at.terminal.write("Needle\r\nx\r\n.......nee\r\ndle n\u0301eedle\r\nÄRGER 漢字漢\r\nneedleneedle\r\n");
    ASSERT_GT(at.terminal.screen_top(), at.terminal.first_row());
    const auto next = [&at](std::string_view needle, Position from, SearchDirection direction,
                            LetterCase letter_case) {
        return find(at.terminal, needle, position(at, from.row, from.column), direction, letter_case);
    };
    constexpr auto forward = SearchDirection::forward;
    constexpr auto backward = SearchDirection::backward;
    constexpr auto ignored = LetterCase::ignored;
    constexpr auto significant = LetterCase::significant;

    EXPECT_EQ(next("needle", {0, -1}, forward, ignored), range(at, {0, 0}, {0, 6}));
    EXPECT_EQ(next("needle", {0, 0}, forward, ignored), range(at, {6, 0}, {6, 6}));
    EXPECT_EQ(next("needle", {0, -1}, forward, significant), range(at, {6, 0}, {6, 6}));
    EXPECT_EQ(next("needle", {6, 0}, forward, ignored), range(at, {6, 6}, {7, 2}));
    EXPECT_EQ(next("needle", {6, 6}, forward, ignored), std::nullopt);
    EXPECT_EQ(next("needle", {9, 0}, backward, ignored), range(at, {6, 6}, {7, 2}));
    EXPECT_EQ(next("needle", {6, 6}, backward, ignored), range(at, {6, 0}, {6, 6}));
    EXPECT_EQ(next("needle", {6, 0}, backward, ignored), range(at, {0, 0}, {0, 6}));
    EXPECT_EQ(next("needle", {0, 0}, backward, ignored), std::nullopt);
    EXPECT_EQ(next("ärger", {9, 0}, backward, ignored), range(at, {4, 0}, {4, 5}));
    EXPECT_EQ(next("字", {0, 0}, forward, ignored), range(at, {4, 8}, {4, 10}));
    EXPECT_EQ(next("nee\ndle", {0, 0}, forward, ignored), std::nullopt);
    EXPECT_EQ(next("", {0, 0}, forward, ignored), std::nullopt);
    EXPECT_EQ(next("\xff", {0, 0}, forward, ignored), std::nullopt);
}

}  // namespace
}  // namespace terminal
