// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <algorithm>
#include <array>
#include <span>

#include <gtest/gtest.h>

namespace terminal {
namespace {

/// What sequences do to a screen of 10 columns by 4 rows.
struct Case {
    const char* name;
    std::string input;
    const char* screen;
    const char* cursor;
};

void expect_screens(std::span<const Case> cases) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened at;
        at.terminal.write(row.input);
        EXPECT_EQ(at.screen(), row.screen);
        EXPECT_EQ(at.cursor(), row.cursor);
    }
}

const std::string four = "aaaa\r\nbbbb\r\ncccc\r\ndddd";  // a letter a row, the cursor at the end

const Case text_cases[] = {
    {"BackspaceStopsAtMargin", "a\b\b\bb", "b|||", "0,1"},
    {"NextCharacterWraps", "0123456789a", "0123456789>|a||", "1,1"},
    {"CarriageReturnAtPendingWrapDoesNotWrap", "0123456789\r\na", "0123456789|a||", "1,1"},
    {"RowWrittenToItsEndAnewNoLongerWraps", "0123456789a\033[1;9HXY", "01234567XY|a||", "0,9+"},
    {"NoAutowrapOverwritesLastColumn", "\033[?7l0123456789abc", "012345678c|||", "0,9"},
    {"LineFeedAtBottomScrolls", four + "\r\ne", "bbbb|cccc|dddd|e", "3,1"},
    {"NewlineModeReturns", "\033[20hab\ncd", "ab|cd||", "1,2"},
    {"NextLine", "ab\033Ecd", "ab|cd||", "1,2"},
    {"IndexAndReverseIndex", "ab\033D\033Mcd", "abcd|||", "0,4"},
    {"ReverseIndexAtTopScrollsDown", four + "\033[H\033M", "|aaaa|bbbb|cccc", "0,0"},
    {"DeleteAndNulAreNothing", std::string("a\0b\177c", 5), "abc|||", "0,3"},
    {"WideCharacterTakesTwoCells", "a漢b", "a漢b|||", "0,4"},
    {"WideCharacterDoesNotStraddleRows", "012345678漢", "012345678>|漢||", "1,2"},
    {"OverwritingHalfAWideCharacterBlanksTheOther", "漢字\033[1;2HX", " X字|||", "0,2"},
    {"OverwritingTheFirstHalfToo", "漢字\033[1;3HX", "漢X|||", "0,3"},
    {"CombiningCharacterAtPendingWrap", "012345678e\u0301x", "012345678e\u0301>|x||", "1,1"},
    {"CombiningCharactersInARow", "e\u0301\u0302\u0303x", "e\u0301\u0302\u0303x|||", "0,2"},
    {"CombiningCharacterJoinsWideOne", "漢\u0301", "漢\u0301|||", "0,2"},
    {"CombiningCharacterWithoutABaseIsDropped", "\u0301x", "x|||", "0,1"},
    {"CombiningCharacterOnABlank", "\033[3C\u0301", "   \u0301|||", "0,3"},
    {"EmojiJoinedByZeroWidthJoiner", "👩\u200d💻x", "👩\u200d💻x|||", "0,5"},
    {"RepeatWideCharacterWraps", "漢\033[5b", "漢漢漢漢漢>|漢||", "1,2"},
    {"RepeatNeedsACharacterRightBefore", "a\033[2bb\033[m\033[3bc\n\033[b", "aaabc|||", "1,5"},
    {"RepeatWithoutAutowrapStaysOnTheLine", "\033[?7lab漢\033[99b", "ab漢漢漢漢|||", "0,9"},
    {"InsertModeOutsideSideMarginsOverwrites", "abc\033[?69h\033[5;9s\033[4hXY", "XYc|||", "0,2"},
    {"LineDrawing", "\033(0lqk\033(Bq", "┌─┐q|||", "0,4"},
    {"ShiftOutAndIn", "\033)0q\016q\017q", "q─q|||", "0,3"},
    {"SingleShift", "\033*0\033Nqq", "─q|||", "0,2"},
    {"British", "\033(A#\033(B#", "£#|||", "0,2"},
    {"NationalSetsInTheirModeOnly", "\033(K[\033[?42h\033(K[]\033(B[", "[ÄÜ[|||", "0,4"},
    {"SetsNamedByTwoCharacters", "\033(%5\"W\033(B\"", "¢Œ\"|||", "0,3"},
    {"SetOf96OnTheLeft", "\033.Ai\033nid\017i", "iéäi|||", "0,4"},
    {"TechnicalSet", "\033(>|S\033(yX", "↑ΣΞ|||", "0,3"},
    {"Latin1InsteadOfUtf8", "\033%@\351\2332Cx\033%G\303\251", "é  xé|||", "0,5"},
    {"RightHalfDesignated", "\033%@\033)0\033~\361\033%G", "─|||", "0,1"},
    {"EightBitControlsWithinUtf8", "\033 G\2332Cx\033 F\2331", "  x\uFFFD1|||", "0,5"},
    {"RightHalfOf94LeavesTwoFree", "\033%@\033*0\240\377\361\033%G", "\u00a0ÿ─|||", "0,3"},
    {"CombiningInLastColumnWithoutAutowrap", "\033[?7l0123456789e\u0301", "012345678e\u0301|||", "0,9"},
    {"CombiningBehindAMoveToTheLastColumn", "\033[?7l0123456789\033[10G\u0301", "012345678\u03019|||", "0,9"},
    {"RepeatTranslatesOnce", "\033(0q\033[2b", "───|||", "0,3"},
    {"RepeatInInsertMode", "abcdef\r\033[4hx\033[3b", "xxxxabcdef|||", "0,4"},
    {"InsertMode", "abcd\r\033[4hXY\033[4lZ", "XYZbcd|||", "0,3"},
    {"InsertModeWithWide", "abcdefgh\r\033[4h漢", "漢abcdefgh|||", "0,2"},
};

TEST(Terminal, TextIsWritten) { expect_screens(text_cases); }

const Case cursor_cases[] = {
    {"PositionIsLimited", "\033[99;99HX", "|||         X", "3,9+"},
    {"PositionDefaultsToHome", "ab\033[HX", "Xb|||", "0,1"},
    {"UpDownForwardBack", "\033[3;3H\033[A\033[2C\033[B\033[DX", "||   X|", "2,4"},
    {"UpStopsAtTopMargin", "\033[2;4r\033[3;1H\033[9A\033[A", "|||", "1,0"},
    {"UpFromAboveTheMarginReachesTheTop", "\033[3;4r\033[2;1H\033[9A", "|||", "0,0"},
    {"NextAndPreviousLine", "ab\033[2E\033[F", "ab|||", "1,0"},
    {"ColumnAndRow", "\033[5G\033[3dX", "||    X|", "2,5"},
    {"RelativeByTheOtherNames", "\033[2a\033[1eX\033[2jY\033[1kZ", "  Z| YX||", "0,3"},
    {"TabStops", "\ta\tb", "        ab|||", "0,9+"},
    {"ClearedTabStop", "\033[9G\033[g\r\tX", "         X|||", "0,9+"},
    {"TabForwardAndBack", "\033[3g\033[3G\033H\033[6G\033H\r\033[2IX\033[2ZY", "  Y  X|||", "0,3"},
    {"SaveAndRestore", "ab\0337\033[4;4H\0338c", "abc|||", "0,3"},
    {"SaveAndRestoreByConsoleSequence", "ab\033[s\033[4;4H\033[uc", "abc|||", "0,3"},
    {"SaveKeepsCharacterSet", "\033(0\0337\033(B\0338q", "─|||", "0,1"},
    {"OriginMode", "\033[2;3r\033[?6h\033[1;2HX\033[9;1HY", "| X|Y|", "2,1"},
    {"MarginsSendHome", "\033[3;3Hab\033[1;2r", "||  ab|", "0,0"},
    {"UselessMarginsAreIgnored", "\033[2;2Hab\033[3;3r", "| ab||", "1,3"},
    {"ReverseWrap", "0123456789a\033[?45h\b\bX", "012345678X|a||", "0,9+"},
    {"ReverseWrapGoesFromTheTopToTheBottom", "\033[2;3r\033[2H\033[?45h\bX", "||         X|", "2,9+"},
    {"AutowrapOffEndsAPendingWrap", "0123456789\033[?7l\033[?7hX", "012345678X|||", "0,9+"},
    {"ReverseWrapCountsAPendingWrap", "0123456789\033[?45h\bX", "012345678X|||", "0,9+"},
    {"FarReverseWrapReachesTheLastRow", "\033[?1045h\bX", "|||         X", "3,9+"},
    {"ReverseWrapNeedsAutowrap", "0123456789a\033[?45;1045h\033[?7l\b\b\b", "0123456789>|a||", "1,0"},
    {"RelativePlacesPassTheMargins", "\033[?69h\033[3;5s\033[1;2r\033[6a\033[2eX", "||      X|", "2,7"},
    {"RelativePlacesWithinOrigin", "\033[?69h\033[3;5s\033[1;2r\033[?6h\033[9a\033[9eX", "|    X||", "1,4+"},
    {"NextLineOutsideTheSideMarginsDoesNotScroll", "\033[?69h\033[1;3s\033[1;2rab\033[2;5H\033Ex", "ab|x||",
     "1,1"},
    {"TabAtPendingWrap", "0123456789\tx", "0123456789>|x||", "1,1"},
    {"TabAtPendingWrapMayWrapFirst", "\033[?41h0123456789\tx", "0123456789>|        x||", "1,9"},
    {"TabStopsOfANewTerminal", "\033[3g\033[?5W\tX", "        X|||", "0,9"},
    {"RestoreStaysWithinTheMarginsInOriginMode", "\033[?6h\0337\033[?6l\033[2;3r\0338X", "|X||", "1,1"},
    {"SaveKeepsProtection", "\033[1\"q\0337\033[\"q\0338a\033[\"qb\033[?2K", "a|||", "0,2"},
    {"RestoreWithoutSaveGoesHome", "\033[?6hab\0338X", "Xb|||", "0,1"},
    {"Vt52", "\033[?2l\033Y\"$a\033A\033Cb\033D\033Bc\033Y~ d\033<\033[1;1He", "e|      b|d   a c|", "0,1"},
    {"Vt52Graphics", "\033[?2l\033Fq\033Gq\033H\033I\033K", "|─q||", "0,0"},
};

TEST(Terminal, CursorIsMoved) { expect_screens(cursor_cases); }

const Case edit_cases[] = {
    {"EraseToEnd", four + "\033[2;3H\033[J", "aaaa|bb||", "1,2"},
    {"EraseFromBegin", four + "\033[2;3H\033[1J", "|   b|cccc|dddd", "1,2"},
    {"EraseAll", four + "\033[2J", "|||", "3,4"},
    {"EraseLineFromBegin", "abcdef\033[3G\033[1K", "   def|||", "0,2"},
    {"EraseWholeLine", "abcdef\033[3G\033[2K", "|||", "0,2"},
    {"EraseAtPendingWrapSparesTheLastCharacter", "0123456789\033[K", "0123456789|||", "0,9+"},
    {"EraseEndsWrap", "0123456789a\033[1;5H\033[K", "0123|a||", "0,4"},
    {"EraseCharacters", "abcdef\033[2G\033[3X", "a   ef|||", "0,1"},
    {"EraseHalfAWideCharacter", "漢字\033[2G\033[X", "  字|||", "0,1"},
    {"InsertCharacters", "abcdefghij\033[2G\033[3@", "a   bcdefg|||", "0,1"},
    {"InsertSplitsWideCharacterAtTheEnd", "abcdefgh漢\033[1G\033[@", " abcdefgh|||", "0,0"},
    {"InsertWithinWideCharacter", "漢b\033[2G\033[@", "   b|||", "0,1"},
    {"DeleteCharacters", "abcdef\033[2G\033[2P", "adef|||", "0,1"},
    {"DeleteHalfAWideCharacter", "a漢b\033[3G\033[P", "a b|||", "0,2"},
    {"DeleteLines", four + "\033[2;3H\033[2M", "aaaa|dddd||", "1,0"},
    {"InsertLinesWithinMargins", four + "\033[1;3r\033[2H\033[L", "aaaa||bbbb|dddd", "1,0"},
    {"DeleteLinesOutsideMargins", four + "\033[1;2r\033[4H\033[M", "aaaa|bbbb|cccc|dddd", "3,0"},
    {"ScrollUpAndDown", four + "\033[2S\033[T", "|cccc|dddd|", "3,4"},
    {"ScrollWithinMargins", four + "\033[2;3r\033[3H\ne", "aaaa|cccc|e|dddd", "2,1"},
    {"ScrollLeftAndRight", "abcdef\033[2 @\033[1 A", " cdef|||", "0,6"},
    {"LineFeedBelowMarginsDoesNotScroll", four + "\033[1;2r\033[4H\nx", "aaaa|bbbb|cccc|xddd", "3,1"},
    {"WrapAtBottomMargin", "\033[2;3r\033[3H0123456789a", "|0123456789>|a|", "2,1"},
    {"WrapBelowTheMargins", "\033[1;2r\033[3Hfoo\033[4H0123456789ab", "||foo|ab23456789", "3,2"},
    {"ScrollPartsTheRowAtTheMargin", "\033[2H0123456789ab\033[1;2r\033[2H\n", "0123456789||ab|", "1,0"},
    {"MovedRowsPart", "0123456789ab\033[2H\033[L", "0123456789||ab|", "1,0"},
    {"CharactersAreNotMovedOutsideSideMargins",
     "abcdefghij\033[?69h\033[2;4s\033[1;7H\033[@\033[P\033[H\033[@\033[P", "abcdefghij|||", "0,0"},
    {"ScrollDownByEcmaFinal", four + "\033[2^", "||aaaa|bbbb", "3,4"},
    {"GuardedAreaWithstandsErase", "a\033Vb\033Wc\033[2K\033[1;1H\033[9X\033[2J", " b|||", "0,0"},
    {"GuardedAreaIsErasedSelectively", "a\033Vb\033Wc\033[?2K", "|||", "0,3"},
    {"GuardedAreaEndsWithReset", "\033Vb\033W\033[!p\033[2K", "|||", "0,1"},
    {"DecProtectionDoesNotWithstandErase", "\033[1\"qab\033[2K", "|||", "0,2"},
    {"ScreenAlignment", "\033#8", "EEEEEEEEEE|EEEEEEEEEE|EEEEEEEEEE|EEEEEEEEEE", "0,0"},
    {"SideMargins", "\033[?69h\033[3;5sabcdef", "abcde|  f||", "1,3"},
    {"ScrollWithinSideMargins", four + "\033[?69h\033[2;3s\033[S", "abba|bccb|cddc|d  d", "0,0"},
    {"InsertColumns", four + "\033[1;2H\033[2'}", "a  aaa|b  bbb|c  ccc|d  ddd", "0,1"},
    {"DeleteColumns", four + "\033[1;2H\033[2'~", "aa|bb|cc|dd", "0,1"},
    {"BackAndForwardIndex", "abc\r\0336\0336X", "X abc|||", "0,1"},
    {"FillRectangle", "\033[88;2;2;3;4$x", "| XXX| XXX|", "0,0"},
    {"EraseRectangle", four + "\033[2;2;3;3$z", "aaaa|b  b|c  c|dddd", "3,4"},
    {"CopyRectangle", four + "\033[1;1;2;2;1;3;3;1$v", "aaaa|bbbb|ccaa|ddbb", "3,4"},
    {"CopyOverlappingRectangle", four + "\033[1;1;3;2;1;2;2;1$v", "aaaa|baab|cbbc|dccd", "3,4"},
    {"SelectiveErase", "\033[1\"qab\033[0\"qcd\033[?2K", "ab|||", "0,4"},
    {"SelectiveEraseOfRectangle", "\033[1\"qab\033[2\"qcd\033[1;1;1;3${", "ab d|||", "0,4"},
    {"SoftReset", "\033[2;3r\033[?6h\033[4h\033(0\033[!p\033[Hab\033[HX", "Xb|||", "0,1"},
    {"ConformanceLevelResets", four + "\033[2;3r\033[63\"px", "x|||", "0,1"},
    {"SideMarginsNeedLevelFour", "\033[63\"p\033[?69h\033[3;5sabcdef", "abcdef|||", "0,6"},
    {"FullReset", four + "\033[2;3r\033[1m\033cx", "x|||", "0,1"},
};

TEST(Terminal, ScreenIsEdited) { expect_screens(edit_cases); }

TEST(Terminal, AlternateScreenKeepsPrimaryAndCursor) {
    Screened at;
    at.terminal.write("one\r\ntwo\033[?1049hALT");
    EXPECT_EQ(at.screen(), "|   ALT||");
    EXPECT_EQ(at.terminal.first_row(), at.terminal.screen_top());
    at.terminal.write("\033[H\n\n\n\n\n\n\033[?1049l!");
    EXPECT_EQ(at.screen(), "one|two!||");
    EXPECT_EQ(at.scrollback(), "");
}

TEST(Terminal, LeavingAlternateScreen1047ErasesIt) {
    Screened at;
    at.terminal.write("\033[?1047hALT\033[?1047l\033[?47h");
    EXPECT_EQ(at.screen(), "|||");
    at.terminal.write("again\033[?47lx\033[?47h");
    EXPECT_EQ(at.screen(), "   again|||");
}

TEST(Terminal, LeavingBy1049RestoresOnlyWhatWasSaved) {
    Screened at;
    at.terminal.write("ab\033[?47hX\033[?1049lY");
    EXPECT_EQ(at.screen(), "ab Y|||");
}

TEST(Terminal, ResetEndsWhatAProgramHasBegun) {
    Screened at;
    at.terminal.write("a\033Xb");
    at.terminal.reset();
    at.terminal.write("c");
    EXPECT_EQ(at.screen(), "c|||");
}

TEST(Terminal, NothingOfAProgramThatEndedStays) {
    Screened at;
    at.terminal.write(
        "ab\033[20;4h\033[?67;1004;2004;2026;1003;1006;5h\033[4 q\033[?25l\033]11;#123456\a"
        "\033[2;3r\033[?69h\033[3g\033(0\033[7m\033[>4;2m\033%@\033[1;3H\033[?1049hc\033Xd");
    at.terminal.end_of_program();
    EXPECT_EQ(at.terminal.modes(), Modes{});
    EXPECT_EQ(at.terminal.cursor().shape, CursorShape::block);
    EXPECT_TRUE(at.terminal.cursor().visible);
    EXPECT_EQ(at.terminal.background(), (Rgb{255, 255, 255}));
    at.terminal.write("q\r\n\tx\n\ny");
    EXPECT_EQ(at.screen(), "abq|        x||         y");
    EXPECT_EQ(at.style(0, 2), Style{});
    at.terminal.write("\033[?2l");
    at.terminal.end_of_program();
    at.terminal.write("\033[Hz");
    EXPECT_EQ(at.screen(), "zbq|        x||         y");
}

TEST(Terminal, ErasingTakesTheBackground) {
    Screened at;
    at.terminal.write("\033[44mab\033[K\033[0m\033[4H\033[41m\n");
    EXPECT_EQ(at.style(3, 5).background, Colour::indexed(1));
    EXPECT_EQ(at.style(0, 5), Style{});
    const Row scrolled = at.terminal.row(at.terminal.screen_top() - 1);
    ASSERT_EQ(scrolled.cells.size(), 10U);
    EXPECT_EQ(at.terminal.style(scrolled.cells[9].style).background, Colour::indexed(4));
}

TEST(Terminal, ReversedAndChangedRectangles) {
    Screened at;
    at.terminal.write("\033[2*x\033[1;2;2;3;1;7$r\033[2;2;2;2;7$t");
    EXPECT_TRUE(at.style(0, 1).reverse && at.style(0, 1).bold && at.style(1, 2).reverse);
    EXPECT_FALSE(at.style(0, 0).bold || at.style(0, 3).bold || at.style(1, 0).bold || at.style(1, 1).reverse);
}

TEST(Terminal, LinksAreKeptByCell) {
    Screened at;
    at.terminal.write(
        "\033]8;;http://a/\033\\ab\033]8;;\033\\c\033]8;id=1;http://b/\007d\033]8;;http://a/\007e");
    const auto cells = at.terminal.row(at.terminal.screen_top()).cells;
    ASSERT_EQ(cells.size(), 5U);
    EXPECT_EQ(at.terminal.link(cells[0].link), "http://a/");
    EXPECT_EQ(cells[2].link, 0);
    EXPECT_EQ(at.terminal.link(cells[3].link), "http://b/");
    EXPECT_EQ(cells[4].link, cells[1].link);
}

TEST(Terminal, LocalTextDoesNotDisturbABegunSequence) {
    Screened at;
    at.terminal.write("a\033[3");
    at.terminal.write_local("b\nc");
    at.terminal.write("Cd\xE6\xBC");
    at.terminal.write_local("e");
    at.terminal.write("\xA2");
    EXPECT_EQ(at.screen(), "ab|c   de漢||");
}

TEST(Terminal, ClearAllEmptiesTheScrollbackAndResetKeepsIt) {
    Screened at;
    at.terminal.write(four + "\r\ne\r\nf");
    const RowId top = at.terminal.screen_top();
    at.terminal.reset();
    EXPECT_EQ(at.screen(), "|||");
    EXPECT_EQ(at.scrollback(), "aaaa|bbbb");
    at.terminal.write("text");
    at.terminal.clear_all();
    EXPECT_EQ(at.screen(), "|||");
    EXPECT_EQ(at.terminal.first_row(), top);
    EXPECT_EQ(at.cursor(), "0,0");
}

TEST(Terminal, ClearAllButLineLeavesTheCursorsLineAtTheTop) {
    Screened at;
    at.terminal.write(four + "\r\n$ 34567890ab\033[A");
    at.terminal.clear_all_but_line();
    EXPECT_EQ(at.screen(), "$ 34567890>|ab||");
    EXPECT_EQ(at.scrollback(), "");
    EXPECT_EQ(at.cursor(), "0,2");
}

TEST(Terminal, StampsTellWhichRowsChanged) {
    Screened at;
    at.terminal.write(four);
    const RowId top = at.terminal.screen_top();
    const auto stamps = [&at, top] {
        return std::array{at.terminal.row(top).stamp, at.terminal.row(top + 1).stamp,
                          at.terminal.row(top + 2).stamp, at.terminal.stamp()};
    };
    const auto before = stamps();
    at.terminal.write("\033[2;1Hx");
    const auto written = stamps();
    EXPECT_EQ(written[0], before[0]);
    EXPECT_GT(written[1], before[1]);
    EXPECT_GT(written[3], before[3]);
    at.terminal.write("\033[4;1H\n");
    EXPECT_EQ(at.terminal.screen_top(), top + 1);
    const auto scrolled = stamps();
    EXPECT_TRUE(std::equal(scrolled.begin(), scrolled.begin() + 3, written.begin()));
    at.terminal.write("\033[H");
    EXPECT_GT(stamps()[3], scrolled[3]);
    at.terminal.write("\033]4;1;#ff0000\a");
    EXPECT_GT(stamps()[2], scrolled[2]);
}

}  // namespace
}  // namespace terminal
