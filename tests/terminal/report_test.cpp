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
    {"Attributes", "\033[c\033Z",
     "\033[?64;1;2;6;9;15;16;17;18;21;22;28c\033[?64;1;2;6;9;15;16;17;18;21;22;28c"},
    {"AttributesOfAVt100", "\033[61\"p\033[c", "\033[?1;2c"},
    {"IdentityOfAVt52", "\033[?2l\033Z", "\033/Z"},
    {"SecondaryAttributes", "\033[>c", "\033[>41;380;0c"},
    {"TertiaryAttributes", "\033[=c", "\033P!|00000000\033\\"},
    {"Status", "\033[5n", "\033[0n"},
    {"Position", "\033[3;4H\033[6n", "\033[3;4R"},
    {"PositionInOriginMode", "\033[2;3r\033[?6h\033[2;4H\033[6n", "\033[2;4R"},
    {"ExtendedPosition", "\033[3;4H\033[?6n", "\033[?3;4;1R"},
    {"KnownModeSet", "\033[?2004h\033[?2004$p", "\033[?2004;1$y"},
    {"KnownModeReset", "\033[?1006$p\033[4$p", "\033[?1006;2$y\033[4;2$y"},
    {"ModesThatCannotBeChanged", "\033[7$p\033[?61$p\033[?1036$p", "\033[7;4$y\033[?61;4$y\033[?1036;3$y"},
    {"ModesOfAnOldTerminal", "\033[62;1\"p\033[?7$p\033P$qm\033\\", ""},
    {"KeyboardIsNeverLocked", "\033[2h\033[2$p", "\033[2;4$y"},
    {"AutoRepeatIsNotTold", "\033[?8$p\033[?8l\033[?8$p", "\033[?8;4$y\033[?8;4$y"},
    {"NoModeOfAVt510", "\033[64;1\"p\033[?95h\033[?95$p", "\033[?95;0$y"},
    {"UnknownMode", "\033[?4711$p", "\033[?4711;0$y"},
    {"SavedModeComesBack", "\033[?7s\033[?7l\033[?7r\033[?7$p", "\033[?7;1$y"},
    {"SizeInCharacters", "\033[18t", "\033[8;4;10t"},
    {"SettingOfStyle", "\033[1;38:5:9m\033P$qm\033\\", "\033P1$r0;1;38:5:9m\033\\"},
    {"SettingOfMargins", "\033[2;3r\033P$qr\033\\", "\033P1$r2;3r\033\\"},
    {"SettingOfCursor", "\033[3 q\033P$q q\033\\", "\033P1$r3 q\033\\"},
    {"SettingOfSideMargins", "\033[?69h\033[2;5s\033P$qs\033\\", "\033P1$r2;5s\033\\"},
    {"SettingOfSize", "\033P$qt\033\\\033P$q$|\033\\", "\033P1$r4t\033\\\033P1$r10$|\033\\"},
    {"SettingOfLevel", "\033[63;1\"p\033P$q\"p\033\\", "\033P1$r63;1\"p\033\\"},
    {"SettingOfProtection", "\033[1\"q\033P$q\"q\033\\", "\033P1$r1\"q\033\\"},
    {"EightBitReplies", "\033 G\033[5n\033P$q*x\033\\\033 F\033[5n", "\2330n\2201$r1*x\234\033[0n"},
    {"StatusReports", "\033[?15n\033[?25n\033[?26n\033[?55n\033[?56n\033[?62n\033[?75n\033[?85n",
     "\033[?13n\033[?21n\033[?27;1;0;0n\033[?50n\033[?57;0n\033[0*{\033[?70n\033[?83n"},
    {"ChecksumOfMacros", "\033[?63;7n", "\033P7!~0000\033\\"},
    {"PreferredSet", "\033[&u", "\033P0!u%5\033\\"},
    {"CursorInformation", "\033[1;7m\033[2;3H\033(0\033[1$w", "\033P1$u2;3;1;I;@;@;0;2;@;0BBB\033\\"},
    {"TabStopsAndBack", "\033[2$w\033P2$t3/5\033\\\033[2$w", "\033P2$u1/9\033\\\033P2$u3/5\033\\"},
    {"Capabilities", "\033P+q436f;544E\033\\\033P+q6b31\033\\",
     "\033P1+r436F=323536;544E=787465726D2D323536636F6C6F72\033\\\033P0+r\033\\"},
    {"ModifiedKeys", "\033[>4;2m\033[?4m\033[>4m\033[?4m\033[?1m", "\033[>4;2m\033[>4;0m\033[>1;2m"},
    {"NoLocatorAndTheExtent", "\033['|\033[\"v", "\033[0&w\033[4;10;1;1;1\"w"},
    {"SettingUnknown", "\033P$qfoo; rm -rf\033\\", "\033P0$r\033\\"},
    {"ColourOfPalette", "\033]4;5;rgb:1/23/456\a\033]4;5;?\a", "\033]4;5;rgb:1111/2323/4545\033\\"},
    {"ColoursByRole", "\033]10;#102030;#405060\a\033]10;?;?\a",
     "\033]10;rgb:1010/2020/3030\033\\\033]11;rgb:4040/5050/6060\033\\"},
    {"ColoursOfAttributes", "\033]5;0;#102030\a\033]4;256;?\a\033]105;0\a\033]5;0;?\a",
     "\033]4;256;rgb:1010/2020/3030\033\\\033]5;0;rgb:0000/0000/0000\033\\"},
    {"ColourByName", "\033]11;light blue\a\033]11;?\a\033]11;no such\a", "\033]11;rgb:adad/d8d8/e6e6\033\\"},
    {"RolesWithoutAnUse", "\033]17;#112233\a\033]17;?\a\033]117\a\033]17;?\a",
     "\033]17;rgb:1111/2222/3333\033\\\033]17;rgb:0000/0000/0000\033\\"},
    {"ColoursInDigits", "\033]4;1;#fff;2;#123456789;3;rgb:f/0ff/0010\a\033]4;1;?;2;?;3;?\a",
     "\033]4;1;rgb:f0f0/f0f0/f0f0\033\\\033]4;2;rgb:1212/4545/7878\033\\\033]4;3;rgb:ffff/1010/0000\033\\"},
    {"ColourReset", "\033]4;1;#fff\a\033]104;1\a\033]4;1;?\a", "\033]4;1;rgb:cdcd/0000/0000\033\\"},
    {"RoleReset", "\033]12;#fff\a\033]112\a\033]12;?\a", "\033]12;rgb:0000/0000/0000\033\\"},
    // No answer:
    {"TitleReports", "\033]0;rm -rf\a\033[20t\033[21t\033[22t\033[23t", ""},
    {"WindowOperations", "\033[8;9;9t\033[30t\033[132$|\033[9*|\033[?40;3h\033[2t\033[18t", "\033[8;4;10t"},
    {"ClipboardAndOthers",
     "\033]52;c;?\a\033]52;c;YQ==\a\033]7;file:///\a\033]9;x\a\033]50;?\a\033]133;A\a\033]777;a\a", ""},
    {"BadColours", "\033]4;999;?\a\033]4;-1;?\a\033]4;1;red\n\a\033]10;rgb:1/2\a\033]20;?\a", ""},
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

/// With everything permitted, and a window of cells of 8 by 16 pixels on a screen of 1600 by 640.
struct PermittedCase {
    const char* name;
    std::string input;
    std::string reply;
};

const PermittedCase permitted_cases[] = {
    {"Checksum", "ab\033[1mc\033[1;1;1;1;1;1*y\033[2;1;1;3;1;3*y\033[3;1;2;1;2;1*y",
     "\033P1!~FF9F\033\\\033P2!~FF1D\033\\\033P3!~FFE0\033\\"},
    {"ChecksumTrimsBlanks", "a b\033[1;1;1;1;1;10*y", "\033P1!~FF1D\033\\"},
    {"ChecksumPlain", "\033[1ma\033[3#y\033[1;1;1;1;1;1*y\033[11#y\033[1;1;2;1;2;1*y",
     "\033P1!~0061\033\\\033P1!~0000\033\\"},
    {"ChecksumOfCharacters", "漢\033[1;1;1;1;1;2*y\033[19#y\033[1;1;1;1;1;2*y",
     "\033P1!~FFDE\033\\\033P1!~6F22\033\\"},
    {"ResizeInCells", "\033[8;6;12t\033[18t\033[8;;9t\033[18t\033[26t\033[18t",
     "\033[8;6;12t\033[8;6;9t\033[8;26;9t"},
    {"ResizeInPixels", "\033[4;160;96t\033[18t\033[14t", "\033[8;10;12t\033[4;160;96t"},
    {"ResizeToTheScreen", "\033[8;0;0t\033[18t\033[19t", "\033[8;40;200t\033[9;40;200t"},
    {"ResizeIsBounded", "\033[8;99999;99999t\033[18t", "\033[8;40;200t"},
    {"Columns", "\033[?3h\033[18t\033[?40;3h\033[18t\033[?3$p\033[?3l\033[18t",
     "\033[8;4;10t\033[8;4;132t\033[?3;1$y\033[8;4;80t"},
    {"LinesAndColumnsOfAPage", "\033[132$|\033[6*|\033[18t", "\033[8;6;132t"},
    {"Geometry", "\033[13t\033[13;2t\033[14;2t\033[15t\033[16t\033[11t",
     "\033[3;3;4t\033[3;5;6t\033[4;128;160t\033[5;640;1600t\033[6;16;8t\033[1t"},
    {"Titles", "\033]2;w\a\033]1;i\a\033[20t\033[21t", "\033]Li\033\\\033]lw\033\\"},
    {"TitleStack",
     "\033]0;a\a\033[22t\033]0;b\a\033[22;2t\033]0;c\a\033[23;2t\033[21t\033[23t\033[20t\033[23t",
     "\033]lb\033\\\033]La\033\\"},
    {"TitlesInHexadecimal", "\033[>0;1t\033]2;C3A40A7e\a\033[21t\033[>0T\033]2;x\a\033[21t",
     "\033]lC3A47E\033\\\033]l78\033\\"},
};

TEST(Reports, TellMoreWhereTheUserPermits) {
    for (const PermittedCase& row : permitted_cases) {
        SCOPED_TRACE(row.name);
        Screened at;
        at.terminal.permit({.checksum = true, .window_operations = true, .clipboard = true});
        at.terminal.write(row.input);
        EXPECT_EQ(at.recorder.replies, row.reply);
    }
}

TEST(Recorder, HearsRequestsOnlyWherePermitted) {
    Screened at;
    const std::string input =
        "\033[2t\033[3;7;8t\033[9;2t\033[10;1t\033[8;5;9t\033]52;c;YWI=\a\033]52;p;!\a\033]52;c;?\a";
    at.terminal.write(input);
    EXPECT_EQ(at.recorder.heard, "");
    at.terminal.permit({.window_operations = true, .clipboard = true});
    at.terminal.write(input);
    EXPECT_EQ(at.recorder.heard, "window 1 0,0|window 2 7,8|window 8 0,0|window 11 0,0|size|clipboard ab|");
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
