// SPDX-License-Identifier: MIT
#include "tests/terminal/screen_fixture.h"

#include <gtest/gtest.h>

// Attacks on terminals that have become known, tried on a terminal as it is by default: what comes back is
// numbers and fixed texts, and nothing beside the terminal changes. (What is pasted is in input_test.cpp.)

namespace terminal {
namespace {

struct Case {
    const char* name;
    std::string input;
    std::string replies;
};

const Case cases[] = {
    {"TitleTyped", "\033]0;\r\nid\r\n\a\033[21t\033[20t\033[22t\033]2;x\a\033[23t\033[21t", ""},
    {"TitleTypedInHexadecimal", "\033[>0;1t\033]2;0d69640d\a\033[21t", ""},
    {"SettingEchoed", "\033P$q\nid\n\033\\", "\033P0$r\033\\"},
    {"CapabilityEchoed", "\033P+q0a69640a\033\\", "\033P0+r\033\\"},
    {"ScreenReadBack", "id\033[1;1;1;1;1;2*y\033[3#y\033[1;1;1;1;1;1*y", ""},
    {"StateEchoed", "\033P1$tid\n\033\\\033P2$tid\n\033\\\033P2$t1\033\\\033[2$w", "\033P2$u1\033\\"},
    {"CharacterSetEchoed", "\033(\nid\033(%x\033[1$w", "\033P1$u2;2;1;@;@;@;0;2;@;BBBB\033\\"},
    {"FontEchoed", "\033]50;id\a\033]50;?\a", ""},
    {"ColourEchoed", "\033]11;\nid\n\a\033]11;?\a", "\033]11;rgb:ffff/ffff/ffff\033\\"},
    {"ColourNumberEchoed", "\033]4;0id;?\a\033]4;00;?\a", "\033]4;0;rgb:0000/0000/0000\033\\"},
    {"ReplyWithLineFeed", "\033GQ\033Gx\n", ""},
    {"ErrorTextEchoed",
     "\033_Gi=1,a=q;id\033\\\033_x\033\\\033^id\033\\\033]1337;ReportVariable=aWQ=\a\033P1000pid\033\\", ""},
    {"AnswerBack", "\005", ""},
    {"WindowChanged", "\033[8;1;1t\033[3;9999;9999t\033[2t\033[4;1;1t\033[99t\033[?40;3h\033[2*|\033[18t",
     "\033[8;4;10t"},
    {"WindowResizedWithoutLimit", "\033[8;2147483648;2147483648t\033[18t", "\033[8;4;10t"},
    {"EndlessRepetition", "x\033[2147483647b\033[H\033[2147483647@\033[2147483647L\033[6n", "\033[1;1R"},
    {"FloodOfCombiningCharacters", "a" + repeated("\u0301", 100'000) + "\r\033[6n", "\033[1;1R"},
    {"EndlessString", "\033]2;" + repeated("x", 1'000'000) + "\033[5n", "\033[0n"},
    {"GraphicsAndPointers", "\033Pq#0;2;0;0;0~~@@\033\\\033P0;1q\033\\\033]22;../../x\a\033_Ga=T;AAAA\033\\",
     ""},
    {"PropertyOrExtension", "\033]3;WM_NAME=x\a\033]777;perl;id\a\033]701;x\a\033]66;x\a", ""},
    {"Notification", "\033]9;$(id)\a\033]99;;id\a\033]777;notify;a;b\a", ""},
    {"SelectionWrittenAndRead", "\033]52;c;aWQK\a\033]52;p;aWQK\a\033]52;c;?\a\033]52;;?\a", ""},
    {"DirectoryReported", "\033]7;file://host/tmp\a\033]1337;CurrentDir=/tmp\a\033]633;P;Cwd=/tmp\a", ""},
};

TEST(Attacks, FindNothingToTypeOrToChange) {
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Screened at;
        at.terminal.write(row.input);
        EXPECT_EQ(at.recorder.replies, row.replies);
        EXPECT_EQ(at.recorder.heard, "");
        for (const std::string& title : at.recorder.titles) {
            EXPECT_EQ(title.find_first_of("\r\n\033"), std::string::npos);
        }
        at.terminal.write("\033\\\033c\033[5n");
        EXPECT_TRUE(at.recorder.replies.ends_with("\033[0n"));  // it lives
    }
}

}  // namespace
}  // namespace terminal
