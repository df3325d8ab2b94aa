// SPDX-License-Identifier: MIT
#include "terminal/scrollback.h"

#include "terminal/engine.h"
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
    at.terminal.write("a\x1b[31mb漢\x1b[0me\u0301 \x1b]8;;http://x/\x1b\\l\x1b]8;;\x1b\\\x1b[1\"qg");
    const RowId top = at.terminal.screen_top();
    const auto before = at.terminal.row(top).cells;
    const std::vector<Cell> on_screen(before.begin(), before.end());
    at.terminal.write("\r\n\n\n\n");
    ASSERT_LT(top, at.terminal.screen_top());
    const auto after = at.terminal.row(top).cells;
    EXPECT_EQ(std::vector<Cell>(after.begin(), after.end()), on_screen);
    EXPECT_EQ(at.row_text(top), "ab漢e\u0301 lg");
}

TEST(Scrollback, KeepsWrappedRowsAndBlankOnes) {
    Screened at;
    at.terminal.write("0123456789abc\r\n\r\n  x\x1b[5Cy\r\n012345678漢\r\n\n\n\n");
    EXPECT_EQ(at.scrollback(), "0123456789>|abc||  x     y|012345678>|漢");
}

TEST(Scrollback, ScrollingBelowATopMarginKeepsNothing) {
    Screened at;
    at.terminal.write("a\r\nb\r\nc\r\nd\x1b[2;4r\x1b[4H\n\n\x1b[1;3r\x1b[3H\ne");
    EXPECT_EQ(at.scrollback(), "a");
    EXPECT_EQ(at.screen(), "d||e|");
}

TEST(Scrollback, DropsTheOldestBeyondItsLimit) {
    Screened at({10, 4}, 5);
    at.terminal.write(numbered_lines(0, 20) + "0123456789abcdefghijABCDEFGHIJxyz\r\n\r\n");
    EXPECT_EQ(at.terminal.screen_top() - at.terminal.first_row(), 5);
    EXPECT_EQ(at.scrollback(), "line 17|line 18|line 19|0123456789>|abcdefghij>");
    EXPECT_EQ(at.screen(), "ABCDEFGHIJ>|xyz||");
}

TEST(Scrollback, LimitOfNoneKeepsNone) {
    Screened at({10, 4}, 0);
    at.terminal.write(numbered_lines(0, 9) + "0123456789abcdefghij0123456789abcdefghij0123456789");
    EXPECT_EQ(at.terminal.screen_top(), at.terminal.first_row());
    EXPECT_EQ(at.screen(), "abcdefghij>|0123456789>|abcdefghij>|0123456789");
}

TEST(Scrollback, IsErasedByItself) {
    Screened at;
    at.terminal.write(numbered_lines(0, 9) + "\x1b[3J");
    EXPECT_EQ(at.scrollback(), "");
    EXPECT_EQ(at.screen(), "line 6|line 7|line 8|");
    at.terminal.write("x\r\n");
    EXPECT_EQ(at.scrollback(), "line 6");
}

TEST(Scrollback, LineInManyPiecesIsOneLine) {
    Screened at({10, 4}, 100'000);
    std::string text;
    for (int i = 0; i < 30'000; ++i) {
        text += static_cast<char>('a' + i % 26);
    }
    at.terminal.write(text + "\r\nend");
    EXPECT_EQ(at.all_text(), text + "\nend");
    at.terminal.resize({7, 4});
    EXPECT_EQ(at.all_text(), text + "\nend");
    at.terminal.resize({93, 40});
    EXPECT_EQ(at.all_text(), text + "\nend");
}

TEST(Scrollback, PlainTextCostsLittleMoreThanItsBytes) {
    Recorder recorder;
    Engine engine({{90, 24}, 10'000}, recorder);
    const std::string line(90, 'x');
    for (int i = 0; i < 12'000; ++i) {
        engine.write(line + "\r\n");
    }
    EXPECT_EQ(engine.screen_top() - engine.first_row(), 10'000);
    EXPECT_LT(engine.scrollback_memory(), 2'000'000U);
}

TEST(Scrollback, MillionRowsCanBeKept) {
    Recorder recorder;
    Engine engine({{90, 24}, 1'000'000}, recorder);
    const std::string lines = numbered_lines(0, 1'000);
    for (int i = 0; i < 1'100; ++i) {
        engine.write(lines);
    }
    EXPECT_EQ(engine.screen_top() - engine.first_row(), 1'000'000);
    EXPECT_LT(engine.scrollback_memory(), 60'000'000U);
    engine.resize({5, 24}, {});
    EXPECT_GT(engine.screen_top() - engine.first_row(), 1'900'000);
    const Row row = engine.row(engine.first_row() + 1'000'001);
    EXPECT_FALSE(row.cells.empty());
}

TEST(RecordStore, MovesARecordThatOutgrowsItsChunk) {
    RecordStore<int, 8> store;
    store.extend(store.end(), 6);
    auto record = store.extend(store.end(), 1);
    *store.at(record) = 42;
    record = store.extend(record, 4);
    EXPECT_EQ(record, 8U);
    EXPECT_EQ(*store.at(record), 42);
    store.drop_before(record);
    EXPECT_EQ(*store.at(record), 42);
    store.truncate(record + 1);
    EXPECT_EQ(store.end(), 9U);
}

}  // namespace
}  // namespace terminal
