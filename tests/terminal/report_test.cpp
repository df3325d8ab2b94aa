// SPDX-License-Identifier: MIT
#include "terminal/limits.h"
#include "tests/terminal/screen_fixture.h"

#include <array>

#include <gtest/gtest.h>

// What goes back to the program, and what never does.

namespace terminal {
namespace {

struct Case {
    const char* name;
    std::string input;
    const char* reply;
};

void PrintTo(const Case& row, std::ostream* out) { *out << row.name; }

class ReportTable : public testing::TestWithParam<Case> {};

TEST_P(ReportTable, IsAnswered) {
    Screened at;
    at.terminal.write(GetParam().input);
    EXPECT_EQ(at.recorder.replies, GetParam().reply);
}

const Case answered[] = {
    {"Attributes", "\x1b[c\x1b[0c", "\x1b[?64;6;22;28c\x1b[?64;6;22;28c"},
    {"SecondaryAttributes", "\x1b[>c", "\x1b[>41;380;0c"},
    {"TertiaryAttributes", "\x1b[=c", "\x1bP!|00000000\x1b\\"},
    {"Status", "\x1b[5n", "\x1b[0n"},
    {"Position", "\x1b[3;4H\x1b[6n", "\x1b[3;4R"},
    {"PositionInOriginMode", "\x1b[2;3r\x1b[?6h\x1b[2;4H\x1b[6n", "\x1b[2;4R"},
    {"ExtendedPosition", "\x1b[3;4H\x1b[?6n", "\x1b[?3;4;1R"},
    {"KnownModeSet", "\x1b[?2004h\x1b[?2004$p", "\x1b[?2004;1$y"},
    {"KnownModeReset", "\x1b[?1006$p\x1b[4$p", "\x1b[?1006;2$y\x1b[4;2$y"},
    {"UnknownMode", "\x1b[?4711$p", "\x1b[?4711;0$y"},
    {"SavedModeComesBack", "\x1b[?7s\x1b[?7l\x1b[?7r\x1b[?7$p", "\x1b[?7;1$y"},
    {"SizeInCharacters", "\x1b[18t", "\x1b[8;4;10t"},
    {"SettingOfStyle", "\x1b[1;38:5:9m\x1bP$qm\x1b\\", "\x1bP1$r0;1;38:5:9m\x1b\\"},
    {"SettingOfMargins", "\x1b[2;3r\x1bP$qr\x1b\\", "\x1bP1$r2;3r\x1b\\"},
    {"SettingOfCursor", "\x1b[3 q\x1bP$q q\x1b\\", "\x1bP1$r3 q\x1b\\"},
    {"SettingUnknown", "\x1bP$qfoo; rm -rf\x1b\\", "\x1bP0$r\x1b\\"},
    {"ColourOfPalette", "\x1b]4;5;rgb:1/23/456\x07\x1b]4;5;?\x07", "\x1b]4;5;rgb:1111/2323/4545\x1b\\"},
    {"ColoursByRole", "\x1b]10;#102030;#405060\x07\x1b]10;?;?\x07",
     "\x1b]10;rgb:1010/2020/3030\x1b\\\x1b]11;rgb:4040/5050/6060\x1b\\"},
    {"ColourReset", "\x1b]4;1;#fff\x07\x1b]104;1\x07\x1b]4;1;?\x07", "\x1b]4;1;rgb:cdcd/0000/0000\x1b\\"},
    {"RoleReset", "\x1b]12;#fff\x07\x1b]112\x07\x1b]12;?\x07", "\x1b]12;rgb:0000/0000/0000\x1b\\"},
};

const Case silent[] = {
    {"TitleReports", "\x1b]0;rm -rf\x07\x1b[20t\x1b[21t\x1b[22t\x1b[23t", ""},
    {"WindowOperations", "\x1b[8;9999;9999t\x1b[14t\x1b[11t\x1b[13t", ""},
    {"ClipboardAndOthers",
     "\x1b]52;c;?\x07\x1b]7;file:///\x07\x1b]9;x\x07\x1b]50;?\x07\x1b]133;A\x07\x1b]777;a\x07", ""},
    {"BadColours", "\x1b]4;999;?\x07\x1b]4;-1;?\x07\x1b]4;1;red\n\x07\x1b]10;rgb:1/2\x07\x1b]13;?\x07", ""},
    {"UnknownStrings", "\x1b_Gq=1\x1b\\\x1b^x\x1b\\\x1bXx\x1b\\\x1bPzz\x1b\\", ""},
    {"Checksum", "\x1b[1;1;1;1;4;10*y", ""},
    {"GraphicsOfRxvt", "\x1bGQ", ""},
    {"OverlongSequences", "\x1b[>0;1;2;3;4;5c\x1b[1c\x1b[>1c", "\x1b[>41;380;0c"},
};

std::string case_name(const testing::TestParamInfo<Case>& row) { return row.param.name; }

INSTANTIATE_TEST_SUITE_P(Answered, ReportTable, testing::ValuesIn(answered), case_name);
INSTANTIATE_TEST_SUITE_P(Silent, ReportTable, testing::ValuesIn(silent), case_name);

TEST(Title, IsPlainTextWithoutControls) {
    Screened at;
    at.terminal.write("\x1b]0;one\ttwo\nthree\x07\x1b]2;\xc3\xa4\x1b\\\x1b]1;icon\x07\x1b]2;\x1b\\");
    EXPECT_EQ(at.recorder.titles, (std::vector<std::string>{"onetwothree", "ä", ""}));
}

TEST(Bell, Rings) {
    Screened at;
    at.terminal.write("\x07\x1b]0;t\x07\x07");
    EXPECT_EQ(at.recorder.bells, 2);
}

TEST(Modes, AreKnownToTheOneAbove) {
    Screened at;
    at.terminal.write("\x1b[?1;5;66;67;1004;2004;2026;1002;1006;1049h\x1b[?1007l\x1b[20h");
    const Modes& modes = at.terminal.modes();
    EXPECT_TRUE(modes.application_cursor_keys && modes.reverse_video && modes.application_keypad &&
                modes.backarrow_sends_backspace && modes.focus_events && modes.bracketed_paste &&
                modes.synchronized_output && modes.alternate_screen && modes.newline);
    EXPECT_FALSE(modes.alternate_scroll);
    EXPECT_EQ(modes.mouse_tracking, MouseTracking::drag);
    EXPECT_EQ(modes.mouse_encoding, MouseEncoding::sgr);
    at.terminal.write(
        "\x1b"
        "c");
    EXPECT_FALSE(at.terminal.modes().alternate_screen || at.terminal.modes().bracketed_paste);
    EXPECT_EQ(at.terminal.modes().mouse_tracking, MouseTracking::off);
}

TEST(Modes, OneMouseModeEndsAnother) {
    Screened at;
    at.terminal.write("\x1b[?1000h\x1b[?1003h\x1b[?1005h\x1b[?1015h");
    EXPECT_EQ(at.terminal.modes().mouse_tracking, MouseTracking::motion);
    EXPECT_EQ(at.terminal.modes().mouse_encoding, MouseEncoding::urxvt);
    at.terminal.write("\x1b[?1003l\x1b[?1015l");
    EXPECT_EQ(at.terminal.modes().mouse_tracking, MouseTracking::off);
    EXPECT_EQ(at.terminal.modes().mouse_encoding, MouseEncoding::classic);
}

TEST(CursorStyle, IsSetByNumber) {
    struct Expected {
        CursorShape shape;
        bool blinking;
    };
    constexpr std::array<Expected, 7> expected = {{{CursorShape::block, false},
                                                   {CursorShape::block, true},
                                                   {CursorShape::block, false},
                                                   {CursorShape::underline, true},
                                                   {CursorShape::underline, false},
                                                   {CursorShape::bar, true},
                                                   {CursorShape::bar, false}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        Screened at;
        at.terminal.write("\x1b[4 q\x1b[" + std::to_string(i) + " q\x1b[?25l");
        EXPECT_EQ(at.terminal.cursor().shape, expected[i].shape) << i;
        EXPECT_EQ(at.terminal.cursor().blinking, expected[i].blinking) << i;
        EXPECT_FALSE(at.terminal.cursor().visible);
    }
}

TEST(StandardColours, AreWhatResetGoesBackTo) {
    Screened at;
    const std::array<Rgb, 2> first = {{{1, 1, 1}, {2, 2, 2}}};
    at.terminal.set_standard_colours({9, 9, 9}, {8, 8, 8}, {7, 7, 7}, first);
    at.terminal.write("\x1b]4;1;#ffffff\x07\x1b]11;#ffffff\x07");
    EXPECT_EQ(at.terminal.palette(1), (Rgb{255, 255, 255}));
    EXPECT_EQ(at.terminal.background(), (Rgb{255, 255, 255}));
    at.terminal.write("\x1b]104\x07\x1b]111\x07");
    EXPECT_EQ(at.terminal.palette(1), (Rgb{2, 2, 2}));
    EXPECT_EQ(at.terminal.background(), (Rgb{8, 8, 8}));
    EXPECT_EQ(at.terminal.foreground(), (Rgb{9, 9, 9}));
    EXPECT_EQ(at.terminal.cursor_colour(), (Rgb{7, 7, 7}));
}

}  // namespace
}  // namespace terminal
