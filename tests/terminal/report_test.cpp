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

const Case cases[] = {
    {"Attributes", "\033[c\033[0c", "\033[?64;6;22;28c\033[?64;6;22;28c"},
    {"SecondaryAttributes", "\033[>c", "\033[>41;380;0c"},
    {"TertiaryAttributes", "\033[=c", "\033P!|00000000\033\\"},
    {"Status", "\033[5n", "\033[0n"},
    {"Position", "\033[3;4H\033[6n", "\033[3;4R"},
    {"PositionInOriginMode", "\033[2;3r\033[?6h\033[2;4H\033[6n", "\033[2;4R"},
    {"ExtendedPosition", "\033[3;4H\033[?6n", "\033[?3;4;1R"},
    {"KnownModeSet", "\033[?2004h\033[?2004$p", "\033[?2004;1$y"},
    {"KnownModeReset", "\033[?1006$p\033[4$p", "\033[?1006;2$y\033[4;2$y"},
    {"UnknownMode", "\033[?4711$p", "\033[?4711;0$y"},
    {"SavedModeComesBack", "\033[?7s\033[?7l\033[?7r\033[?7$p", "\033[?7;1$y"},
    {"SizeInCharacters", "\033[18t", "\033[8;4;10t"},
    {"SettingOfStyle", "\033[1;38:5:9m\033P$qm\033\\", "\033P1$r0;1;38:5:9m\033\\"},
    {"SettingOfMargins", "\033[2;3r\033P$qr\033\\", "\033P1$r2;3r\033\\"},
    {"SettingOfCursor", "\033[3 q\033P$q q\033\\", "\033P1$r3 q\033\\"},
    {"SettingUnknown", "\033P$qfoo; rm -rf\033\\", "\033P0$r\033\\"},
    {"ColourOfPalette", "\033]4;5;rgb:1/23/456\a\033]4;5;?\a", "\033]4;5;rgb:1111/2323/4545\033\\"},
    {"ColoursByRole", "\033]10;#102030;#405060\a\033]10;?;?\a",
     "\033]10;rgb:1010/2020/3030\033\\\033]11;rgb:4040/5050/6060\033\\"},
    {"ColourReset", "\033]4;1;#fff\a\033]104;1\a\033]4;1;?\a", "\033]4;1;rgb:cdcd/0000/0000\033\\"},
    {"RoleReset", "\033]12;#fff\a\033]112\a\033]12;?\a", "\033]12;rgb:0000/0000/0000\033\\"},
    // No answer:
    {"TitleReports", "\033]0;rm -rf\a\033[20t\033[21t\033[22t\033[23t", ""},
    {"WindowOperations", "\033[8;9999;9999t\033[14t\033[11t\033[13t", ""},
    {"ClipboardAndOthers", "\033]52;c;?\a\033]7;file:///\a\033]9;x\a\033]50;?\a\033]133;A\a\033]777;a\a", ""},
    {"BadColours", "\033]4;999;?\a\033]4;-1;?\a\033]4;1;red\n\a\033]10;rgb:1/2\a\033]13;?\a", ""},
    {"UnknownStrings", "\033_Gq=1\033\\\033^x\033\\\033Xx\033\\\033Pzz\033\\", ""},
    {"Checksum", "\033[1;1;1;1;4;10*y", ""},
    {"GraphicsOfRxvt", "\033GQ", ""},
    {"OverlongSequences", "\033[>0;1;2;3;4;5c\033[1c\033[>1c", "\033[>41;380;0c"},
};

TEST(Reports, HoldWhatIsAskedForAndNothingOfTheInput) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened at;
        at.terminal.write(row.input);
        EXPECT_EQ(at.recorder.replies, row.reply);
    }
}

TEST(Recorder, HearsBellsAndTitlesWithoutControls) {
    Screened at;
    at.terminal.write("\a\033]0;one\ttwo\nthree\a\033]2;\xc3\xa4\033\\\033]1;icon\a\033]2;\033\\");
    EXPECT_EQ(at.recorder.titles, (std::vector<std::string>{"onetwothree", "ä", ""}));
    EXPECT_EQ(at.recorder.bells, 1);
}

TEST(Modes, AreKnownToTheOneAbove) {
    Screened at;
    at.terminal.write("\033[?1;5;66;67;1004;2004;2026;1002;1006;1049h\033[?1007l\033[20h");
    const Modes& modes = at.terminal.modes();
    EXPECT_TRUE(modes.application_cursor_keys && modes.reverse_video && modes.application_keypad &&
                modes.backarrow_sends_backspace && modes.focus_events && modes.bracketed_paste &&
                modes.synchronized_output && modes.alternate_screen && modes.newline);
    EXPECT_FALSE(modes.alternate_scroll);
    EXPECT_EQ(modes.mouse_tracking, MouseTracking::drag);
    EXPECT_EQ(modes.mouse_encoding, MouseEncoding::sgr);
    at.terminal.write("\033[?1003h\033[?1015h");
    EXPECT_EQ(modes.mouse_tracking, MouseTracking::motion);
    EXPECT_EQ(modes.mouse_encoding, MouseEncoding::urxvt);
    at.terminal.write("\033[?1003l\033[?1015l");
    EXPECT_EQ(modes.mouse_tracking, MouseTracking::off);
    EXPECT_EQ(modes.mouse_encoding, MouseEncoding::classic);
    at.terminal.write("\033[?1003h\033c");
    EXPECT_FALSE(modes.alternate_screen || modes.bracketed_paste);
    EXPECT_EQ(modes.mouse_tracking, MouseTracking::off);
}

TEST(CursorStyle, IsSetByNumber) {
    using enum CursorShape;
    constexpr std::array shapes{block, block, block, underline, underline, bar, bar};
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        Screened at;
        at.terminal.write("\033[4 q\033[" + std::to_string(i) + " q\033[?25l");
        EXPECT_EQ(at.terminal.cursor().shape, shapes[i]) << i;
        EXPECT_EQ(at.terminal.cursor().blinking, i % 2 == 1) << i;
        EXPECT_FALSE(at.terminal.cursor().visible);
    }
}

TEST(StandardColours, AreWhatResetGoesBackTo) {
    Screened at;
    const std::array<Rgb, 2> first = {{{1, 1, 1}, {2, 2, 2}}};
    at.terminal.set_standard_colours({9, 9, 9}, {8, 8, 8}, {7, 7, 7}, first);
    at.terminal.write("\033]4;1;#ffffff\a\033]11;#ffffff\a");
    EXPECT_EQ(at.terminal.palette(1), (Rgb{255, 255, 255}));
    EXPECT_EQ(at.terminal.background(), (Rgb{255, 255, 255}));
    at.terminal.write("\033]104\a\033]111\a");
    EXPECT_EQ(at.terminal.palette(1), (Rgb{2, 2, 2}));
    EXPECT_EQ(at.terminal.background(), (Rgb{8, 8, 8}));
    EXPECT_EQ(at.terminal.foreground(), (Rgb{9, 9, 9}));
    EXPECT_EQ(at.terminal.cursor_colour(), (Rgb{7, 7, 7}));
}

}  // namespace
}  // namespace terminal
