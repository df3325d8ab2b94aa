// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

// What sequences do to the screen: one table by subject, 10 columns by 4 rows.

namespace terminal {
namespace {

struct Case {
    const char* name;
    std::string input;
    const char* screen;
    const char* cursor;
};

void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

class EngineTable : public testing::TestWithParam<Case> {};

TEST_P(EngineTable, LeavesScreenAndCursor) {
    Screened at;
    at.terminal.write(GetParam().input);
    EXPECT_EQ(at.screen(), GetParam().screen);
    EXPECT_EQ(at.cursor(), GetParam().cursor);
}

std::string case_name(const testing::TestParamInfo<Case>& row) { return row.param.name; }

const std::string four = "aaaa\r\nbbbb\r\ncccc\r\ndddd";  // a letter a row, the cursor at the end

const Case text_cases[] = {
    {"Text", "hi", "hi|||", "0,2"},
    {"CarriageReturnOverwrites", "hello\rJ", "Jello|||", "0,1"},
    {"LineFeedKeepsColumn", "ab\ncd", "ab|  cd||", "1,4"},
    {"BackspaceStopsAtMargin", "a\b\b\bb", "b|||", "0,1"},
    {"LastColumnLeavesWrapPending", "0123456789", "0123456789|||", "0,9+"},
    {"NextCharacterWraps", "0123456789a", "0123456789>|a||", "1,1"},
    {"CarriageReturnAtPendingWrapDoesNotWrap", "0123456789\r\na", "0123456789|a||", "1,1"},
    {"RowWrittenToItsEndAnewNoLongerWraps", "0123456789a\x1b[1;9HXY", "01234567XY|a||", "0,9+"},
    {"NoAutowrapOverwritesLastColumn", "\x1b[?7l0123456789abc", "012345678c|||", "0,9"},
    {"LineFeedAtBottomScrolls", four + "\r\ne", "bbbb|cccc|dddd|e", "3,1"},
    {"NewlineModeReturns", "\x1b[20hab\ncd", "ab|cd||", "1,2"},
    {"NextLine",
     "ab\x1b"
     "Ecd",
     "ab|cd||", "1,2"},
    {"IndexAndReverseIndex",
     "ab\x1b"
     "D\x1b"
     "Mcd",
     "abcd|||", "0,4"},
    {"ReverseIndexAtTopScrollsDown", four + "\x1b[H\x1bM", "|aaaa|bbbb|cccc", "0,0"},
    {"DeleteAndNulAreNothing",
     std::string("a\0b\x7f"
                 "c",
                 5),
     "abc|||", "0,3"},
    {"WideCharacterTakesTwoCells", "a漢b", "a漢b|||", "0,4"},
    {"WideCharacterDoesNotStraddleRows", "012345678漢", "012345678>|漢||", "1,2"},
    {"OverwritingHalfAWideCharacterBlanksTheOther", "漢字\x1b[1;2HX", " X字|||", "0,2"},
    {"OverwritingTheFirstHalfToo", "漢字\x1b[1;3HX", "漢X|||", "0,3"},
    {"CombiningCharacterJoins", "e\u0301x", "e\u0301x|||", "0,2"},
    {"CombiningCharacterAtPendingWrap", "012345678e\u0301x", "012345678e\u0301>|x||", "1,1"},
    {"CombiningCharacterJoinsWideOne", "漢\u0301", "漢\u0301|||", "0,2"},
    {"CombiningCharacterWithoutABaseIsDropped", "\u0301x", "x|||", "0,1"},
    {"CombiningCharacterOnABlank", "\x1b[3C\u0301", "   \u0301|||", "0,3"},
    {"EmojiJoinedByZeroWidthJoiner", "👩\u200d💻x", "👩\u200d💻x|||", "0,5"},
    {"RepeatCharacter", "ab\x1b[3b", "abbbb|||", "0,5"},
    {"RepeatWideCharacterWraps", "漢\x1b[5b", "漢漢漢漢漢>|漢||", "1,2"},
    {"LineDrawing", "\x1b(0lqk\x1b(Bq", "┌─┐q|||", "0,4"},
    {"ShiftOutAndIn", "\x1b)0q\x0eq\x0fq", "q─q|||", "0,3"},
    {"SingleShift", "\x1b*0\x1bNqq", "─q|||", "0,2"},
    {"British", "\x1b(A#\x1b(B#", "£#|||", "0,2"},
    {"InsertMode", "abcd\r\x1b[4hXY\x1b[4lZ", "XYZbcd|||", "0,3"},
    {"InsertModeWithWide", "abcdefgh\r\x1b[4h漢", "漢abcdefgh|||", "0,2"},
};

const Case cursor_cases[] = {
    {"Position", "\x1b[2;3HX", "|  X||", "1,3"},
    {"PositionIsLimited", "\x1b[99;99HX", "|||         X", "3,9+"},
    {"PositionDefaultsToHome", "ab\x1b[HX", "Xb|||", "0,1"},
    {"UpDownForwardBack", "\x1b[3;3H\x1b[A\x1b[2C\x1b[B\x1b[DX", "||   X|", "2,4"},
    {"UpStopsAtTopMargin", "\x1b[2;4r\x1b[3;1H\x1b[9A", "|||", "1,0"},
    {"UpFromAboveTheMarginReachesTheTop", "\x1b[3;4r\x1b[2;1H\x1b[9A", "|||", "0,0"},
    {"NextAndPreviousLine", "ab\x1b[2E\x1b[F", "ab|||", "1,0"},
    {"ColumnAndRow", "\x1b[5G\x1b[3dX", "||    X|", "2,5"},
    {"RelativeByTheOtherNames", "\x1b[2a\x1b[1eX\x1b[2jY\x1b[1kZ", "  Z| YX||", "0,3"},
    {"TabStops", "\ta\tb", "        ab|||", "0,9+"},
    {"OwnTabStop", "\x1b[4G\x1bH\r\tX", "   X|||", "0,4"},
    {"ClearedTabStop", "\x1b[9G\x1b[g\r\tX", "         X|||", "0,9+"},
    {"TabForwardAndBack", "\x1b[3g\x1b[3G\x1bH\x1b[6G\x1bH\r\x1b[2IX\x1b[2ZY", "  Y  X|||", "0,3"},
    {"SaveAndRestore",
     "ab\x1b"
     "7\x1b[4;4H\x1b"
     "8c",
     "abc|||", "0,3"},
    {"SaveAndRestoreByConsoleSequence", "ab\x1b[s\x1b[4;4H\x1b[uc", "abc|||", "0,3"},
    {"SaveKeepsCharacterSet",
     "\x1b(0\x1b"
     "7\x1b(B\x1b"
     "8q",
     "─|||", "0,1"},
    {"OriginMode", "\x1b[2;3r\x1b[?6h\x1b[1;2HX\x1b[9;1HY", "| X|Y|", "2,1"},
    {"MarginsSendHome", "\x1b[3;3Hab\x1b[1;2r", "||  ab|", "0,0"},
    {"UselessMarginsAreIgnored", "\x1b[2;2Hab\x1b[3;3r", "| ab||", "1,3"},
    {"ReverseWrap", "0123456789a\x1b[?45h\b\bX", "012345678X|a||", "0,9+"},
};

const Case edit_cases[] = {
    {"EraseToEnd", four + "\x1b[2;3H\x1b[J", "aaaa|bb||", "1,2"},
    {"EraseFromBegin", four + "\x1b[2;3H\x1b[1J", "|   b|cccc|dddd", "1,2"},
    {"EraseAll", four + "\x1b[2J", "|||", "3,4"},
    {"EraseLineToEnd", "abcdef\x1b[3G\x1b[K", "ab|||", "0,2"},
    {"EraseLineFromBegin", "abcdef\x1b[3G\x1b[1K", "   def|||", "0,2"},
    {"EraseWholeLine", "abcdef\x1b[3G\x1b[2K", "|||", "0,2"},
    {"EraseAtPendingWrapSparesTheLastCharacter", "0123456789\x1b[K", "0123456789|||", "0,9+"},
    {"EraseEndsWrap", "0123456789a\x1b[1;5H\x1b[K", "0123|a||", "0,4"},
    {"EraseCharacters", "abcdef\x1b[2G\x1b[3X", "a   ef|||", "0,1"},
    {"EraseHalfAWideCharacter", "漢字\x1b[2G\x1b[X", "  字|||", "0,1"},
    {"InsertCharacters", "abcdefghij\x1b[2G\x1b[3@", "a   bcdefg|||", "0,1"},
    {"InsertSplitsWideCharacterAtTheEnd", "abcdefgh漢\x1b[1G\x1b[@", " abcdefgh|||", "0,0"},
    {"InsertWithinWideCharacter", "漢b\x1b[2G\x1b[@", "   b|||", "0,1"},
    {"DeleteCharacters", "abcdef\x1b[2G\x1b[2P", "adef|||", "0,1"},
    {"DeleteHalfAWideCharacter", "a漢b\x1b[3G\x1b[P", "a b|||", "0,2"},
    {"InsertLines", four + "\x1b[2;3H\x1b[2L", "aaaa|||bbbb", "1,0"},
    {"DeleteLines", four + "\x1b[2;3H\x1b[2M", "aaaa|dddd||", "1,0"},
    {"InsertLinesWithinMargins", four + "\x1b[1;3r\x1b[2H\x1b[L", "aaaa||bbbb|dddd", "1,0"},
    {"DeleteLinesOutsideMargins", four + "\x1b[1;2r\x1b[4H\x1b[M", "aaaa|bbbb|cccc|dddd", "3,0"},
    {"ScrollUp", four + "\x1b[2S", "cccc|dddd||", "3,4"},
    {"ScrollDown", four + "\x1b[T", "|aaaa|bbbb|cccc", "3,4"},
    {"ScrollWithinMargins", four + "\x1b[2;3r\x1b[3H\ne", "aaaa|cccc|e|dddd", "2,1"},
    {"ScrollLeftAndRight", "abcdef\x1b[2 @\x1b[1 A", " cdef|||", "0,6"},
    {"LineFeedBelowMarginsDoesNotScroll", four + "\x1b[1;2r\x1b[4H\nx", "aaaa|bbbb|cccc|xddd", "3,1"},
    {"WrapAtBottomMargin", "\x1b[2;3r\x1b[3H0123456789a", "|0123456789>|a|", "2,1"},
    {"MovedRowsPart", "0123456789ab\x1b[2H\x1b[L", "0123456789||ab|", "1,0"},
    {"ScreenAlignment", "\x1b#8", "EEEEEEEEEE|EEEEEEEEEE|EEEEEEEEEE|EEEEEEEEEE", "0,0"},
    {"SideMargins", "\x1b[?69h\x1b[3;5sabcdef", "abcde|  f||", "1,3"},
    {"ScrollWithinSideMargins", four + "\x1b[?69h\x1b[2;3s\x1b[S", "abba|bccb|cddc|d  d", "0,0"},
    {"InsertColumns", four + "\x1b[1;2H\x1b[2'}", "a  aaa|b  bbb|c  ccc|d  ddd", "0,1"},
    {"DeleteColumns", four + "\x1b[1;2H\x1b[2'~", "aa|bb|cc|dd", "0,1"},
    {"BackAndForwardIndex",
     "abc\r\x1b"
     "6\x1b"
     "6X",
     "X abc|||", "0,1"},
    {"FillRectangle", "\x1b[88;2;2;3;4$x", "| XXX| XXX|", "0,0"},
    {"EraseRectangle", four + "\x1b[2;2;3;3$z", "aaaa|b  b|c  c|dddd", "3,4"},
    {"CopyRectangle", four + "\x1b[1;1;2;2;1;3;3;1$v", "aaaa|bbbb|ccaa|ddbb", "3,4"},
    {"CopyOverlappingRectangle", four + "\x1b[1;1;3;2;1;2;2;1$v", "aaaa|baab|cbbc|dccd", "3,4"},
    {"SelectiveErase", "\x1b[1\"qab\x1b[0\"qcd\x1b[?2K", "ab|||", "0,4"},
    {"SelectiveEraseOfRectangle", "\x1b[1\"qab\x1b[2\"qcd\x1b[1;1;1;3${", "ab d|||", "0,4"},
    {"SoftReset", "\x1b[2;3r\x1b[?6h\x1b[4h\x1b(0\x1b[!p\x1b[Hab\x1b[HX", "Xb|||", "0,1"},
    {"FullReset",
     four + "\x1b[2;3r\x1b[1m\x1b"
            "cx",
     "x|||", "0,1"},
};

INSTANTIATE_TEST_SUITE_P(Text, EngineTable, testing::ValuesIn(text_cases), case_name);
INSTANTIATE_TEST_SUITE_P(Movement, EngineTable, testing::ValuesIn(cursor_cases), case_name);
INSTANTIATE_TEST_SUITE_P(Editing, EngineTable, testing::ValuesIn(edit_cases), case_name);

TEST(Engine, AlternateScreenKeepsPrimaryAndCursor) {
    Screened at;
    at.terminal.write("one\r\ntwo\x1b[?1049hALT");
    EXPECT_EQ(at.screen(), "|   ALT||");
    EXPECT_EQ(at.terminal.first_row(), at.terminal.screen_top());
    at.terminal.write("\x1b[H\n\n\n\n\n\n\x1b[?1049l!");
    EXPECT_EQ(at.screen(), "one|two!||");
    EXPECT_EQ(at.scrollback(), "");
}

TEST(Engine, LeavingAlternateScreen1047ErasesIt) {
    Screened at;
    at.terminal.write("\x1b[?1047hALT\x1b[?1047l\x1b[?47h");
    EXPECT_EQ(at.screen(), "|||");
    at.terminal.write("again\x1b[?47lx\x1b[?47h");
    EXPECT_EQ(at.screen(), "   again|||");
}

TEST(Engine, ErasingTakesTheBackground) {
    Screened at;
    at.terminal.write("\x1b[44mab\x1b[K\x1b[0m\x1b[4H\x1b[41m\n");
    EXPECT_EQ(at.style(3, 5).background, Colour::indexed(1));
    EXPECT_EQ(at.style(0, 5), Style{});
    const Row scrolled = at.terminal.row(at.terminal.screen_top() - 1);
    ASSERT_EQ(scrolled.cells.size(), 10U);
    EXPECT_EQ(at.terminal.style(scrolled.cells[9].style).background, Colour::indexed(4));
}

TEST(Engine, ReversedAndChangedRectangles) {
    Screened at;
    at.terminal.write("\x1b[2*x\x1b[1;2;2;3;1;7$r\x1b[2;2;2;2;7$t");
    EXPECT_TRUE(at.style(0, 1).reverse && at.style(0, 1).bold && at.style(1, 2).reverse);
    EXPECT_FALSE(at.style(0, 0).bold || at.style(0, 3).bold || at.style(1, 1).reverse);
}

TEST(Engine, LinksAreKeptByCell) {
    Screened at;
    at.terminal.write(
        "\x1b]8;;http://a/\x1b\\ab\x1b]8;;\x1b\\c\x1b]8;id=1;http://b/\x07"
        "d\x1b]8;;http://a/\x07"
        "e");
    const auto cells = at.terminal.row(at.terminal.screen_top()).cells;
    ASSERT_EQ(cells.size(), 5U);
    EXPECT_EQ(at.terminal.link(cells[0].link), "http://a/");
    EXPECT_EQ(cells[2].link, 0);
    EXPECT_EQ(at.terminal.link(cells[3].link), "http://b/");
    EXPECT_EQ(cells[4].link, cells[1].link);
}

TEST(Engine, LocalTextDoesNotDisturbABegunSequence) {
    Screened at;
    at.terminal.write("a\x1b[3");
    at.terminal.write_local("b\nc");
    at.terminal.write("Cd\xE6\xBC");
    at.terminal.write_local("e");
    at.terminal.write("\xA2");
    EXPECT_EQ(at.screen(), "ab|c   de漢||");
}

TEST(Engine, ClearAllEmptiesScreenAndScrollback) {
    Screened at;
    at.terminal.write(four + "\r\ne\r\nf");
    const RowId top = at.terminal.screen_top();
    at.terminal.clear_all();
    EXPECT_EQ(at.screen(), "|||");
    EXPECT_EQ(at.terminal.first_row(), top);
    EXPECT_EQ(at.cursor(), "0,0");
}

TEST(Engine, ResetKeepsTheScrollback) {
    Screened at;
    at.terminal.write(four + "\r\ne");
    at.terminal.reset();
    EXPECT_EQ(at.screen(), "|||");
    EXPECT_EQ(at.scrollback(), "aaaa");
}

TEST(Engine, StampsTellWhichRowsChanged) {
    Screened at;
    at.terminal.write(four);
    const RowId top = at.terminal.screen_top();
    const auto stamp = [&at](RowId id) { return at.terminal.row(id).stamp; };
    const auto first = stamp(top);
    const auto second = stamp(top + 1);
    const auto whole = at.terminal.stamp();
    at.terminal.write("\x1b[2;1Hx");
    EXPECT_EQ(stamp(top), first);
    EXPECT_GT(stamp(top + 1), second);
    EXPECT_GT(at.terminal.stamp(), whole);

    const auto before_scroll = stamp(top + 2);
    at.terminal.write("\x1b[4;1H\n");
    EXPECT_EQ(at.terminal.screen_top(), top + 1);
    EXPECT_EQ(stamp(top + 2), before_scroll);
    EXPECT_EQ(stamp(top), first);

    const auto before_move = at.terminal.stamp();
    at.terminal.write("\x1b[H");
    EXPECT_GT(at.terminal.stamp(), before_move);
    const auto before_palette = stamp(top + 2);
    at.terminal.write("\x1b]4;1;#ff0000\x07");
    EXPECT_GT(stamp(top + 2), before_palette);
}

}  // namespace
}  // namespace terminal
