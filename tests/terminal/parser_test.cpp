// SPDX-License-Identifier: MIT
#include "terminal/parser.h"

#include "terminal/width.h"
#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>
#include <utf8proc.h>

namespace terminal {
namespace {

struct Case {
    const char* name;
    std::string_view input;
    const char* screen;
    std::vector<std::string> titles;
    const char* reply = "";
};

const Case cases[] = {
    {"MissingParameters", "\033[;5Hx\033[3;Hy", "    x||y|", {}},
    {"TooManyIntermediatesAreIgnored", "\033[ !\"pa\033 !\"pb", "ab|||", {}},
    {"PrefixInTheWrongPlaceIsIgnored", "\033[1?ha\033[1$2pb", "ab|||", {}},
    {"SubParametersAreForAttributes", "\033[3:2Ca\033[:3H\033[4:3mb", "ab|||", {}},
    {"ControlsActWithinSequences", "\033[2\nCx", "|  x||", {}},
    {"CancelEndsASequence", "\033[1\030x\033]2;t\032y", "xy|||", {}},
    {"EscapeBeginsAnew", "\033[3\033[2Cx", "  x|||", {}},
    {"NonAsciiBreaksASequence", "\033[1é2", "é2|||", {}},
    {"OscEndsWithBellOrSt", "\033]0;a\a\033]2;b\033\\", "|||", {"a", "b"}},
    {"OscEndsWithC1St", "\033]0;a\302\234b", "b|||", {"a"}},
    {"OscKeepsUtf8AndDropsControls", "\033]0;\303\244\n\177b\377\a", "|||", {"äb\uFFFD"}},
    {"OscBrokenOffIsIgnored", "\033]0;a\033[mb\033\\", "b|||", {}},
    {"OscBrokenOffByAnotherString", "\033]0;a\033Xb\033\\c", "c|||", {}},
    {"DcsHoldsBell", "\033P$q\am\033\\x", "x|||", {}, "\033P1$r0m\033\\"},
    {"DcsHeadHoldsDelete", "\033P\1771\177$\177qm\033\\x", "x|||", {}, "\033P1$r0m\033\\"},
    {"IgnoredStrings", "\033_a\a\033\\\033^b\033\\\033Xc\033\\d", "d|||", {}},
    {"C1AsUtf8", "\302\2332Cx\302\205y\302\2350;t\a", "  x|y||", {"t"}},
    {"BlanksBetweenOtherCharacters", "é 漢 ж.漢\302\205λ x", "é 漢 ж.漢|λ x||", {}},
    {"OtherSetBetweenUtf8Characters", "\033(0éqéq", "é─é─|||", {}},
    {"SequencesOfNumbersCutByOthers", "\033[1;\0332\033[2;3Hx\033[38:5:1;4 my\033[", "|  xy||", {}},
    {"RawC1BytesAreIllFormed", "\2331m", "\uFFFD1m|||", {}},
    // Unicode 15, table 3-8 and its neighbours: one replacement for each maximal subpart.
    {"Overlong",
     "\300\257\340\200\277\360\201\202A",
     "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA|||",
     {}},
    {"Surrogates", "\355\240\200A", "\uFFFD\uFFFD\uFFFDA|||", {}},
    {"BeyondTheLast", "\364\221\222\223\377A", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA|||", {}},
    {"CutShort", "\341\200\342\360\221\222\361\277A", "\uFFFD\uFFFD\uFFFD\uFFFDA|||", {}},
    {"CutShortByAControl", "\341\200\n\360\237\033[mx", "\uFFFD| \uFFFDx||", {}},
};

void expect_read(const Case& row, const Screened& at) {
    EXPECT_EQ(at.screen(), row.screen);
    EXPECT_EQ(at.recorder.titles, row.titles);
    EXPECT_EQ(at.recorder.replies, row.reply);
}

TEST(Parser, ReadsWholeInputAndSingleBytesAlike) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened whole;
        whole.terminal.write(row.input);
        expect_read(row, whole);
        Screened bytes;
        for (const char byte : row.input) {
            bytes.terminal.write({&byte, 1});
        }
        expect_read(row, bytes);
    }
}

// The characters that are told apart without the library's tables must be told as it does.
TEST(Width, AgreesWithTheTables) {
    for (char32_t character = 0xA0; character < 0x20000; ++character) {
        const int width = utf8proc_charwidth(static_cast<utf8proc_int32_t>(character));
        const bool jamo = character >= 0x1160 && character <= 0x11FF;
        if (width > 0 && character != 0xAD && !jamo) {
            ASSERT_EQ(character_width(character), width) << std::hex << static_cast<unsigned>(character);
        }
    }
    for (const char32_t joiner : {U'\u0301', U'\u200b', U'\u200d', U'\ufe0f', U'\u20dd', U'\u1160'}) {
        EXPECT_EQ(character_width(joiner), 0) << std::hex << static_cast<unsigned>(joiner);
    }
    EXPECT_EQ(character_width(0xAD), 1);
    EXPECT_EQ(character_width(0xE000), 1);
}

}  // namespace
}  // namespace terminal
