// SPDX-License-Identifier: MIT
#include "app/text.h"

#include <gtest/gtest.h>

namespace {

using Routine = std::string (*)(std::string_view);

struct Case {
    const char* name;
    Routine routine;
    std::string input;
    std::string expected;
};

class TextRoutine : public testing::TestWithParam<Case> {};

TEST_P(TextRoutine, GivesTheExpectedText) {
    EXPECT_EQ(GetParam().routine(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, TextRoutine,
    testing::Values(Case{"SpacesAllGo", remove_spaces, " a b\tc\n ", "ab\tc\n"},
                    Case{"NontextGoes", remove_nontext, " a\tb\nc ", "abc"},
                    Case{"LeadingBlanksAndTabsGo", remove_leading_blanks, " \t a b ", "a b "},
                    Case{"LeadingLineFeedStays", remove_leading_blanks, "\n a", "\n a"},
                    Case{"OnlyLeadingBlanks", remove_leading_blanks, "  \t", ""},
                    Case{"TrailingBlanksGoTabsStay", remove_trailing_spaces, "a b\t  ", "a b\t"},
                    Case{"BlanksOnly", remove_trailing_spaces, "   ", ""},
                    Case{"TrailingSlashesGo", remove_trailing_slashes, "/a/b//", "/a/b"},
                    Case{"RootBecomesEmpty", remove_trailing_slashes, "/", ""},
                    Case{"BlockCommentBlanked", remove_comments1, "a/*b\nc*/d", "a       d"},
                    Case{"BlockCommentsEach", remove_comments1, "/**/x/*y*/", "    x     "},
                    Case{"BlockCommentOverlapIsNoEnd", remove_comments1, "a/*/b", "a    "},
                    Case{"BlockCommentWithoutEnd", remove_comments1, "a /* b\n", "a      "},
                    Case{"LineCommentKeepsLineFeed", remove_comments2, "a//b\nc // d", "a   \nc     "},
                    Case{"CutAtLineFeed", remove_nl, "first\nsecond\n", "first"},
                    Case{"NoLineFeed", remove_nl, "only", "only"},
                    Case{"BlanksEscaped", ConvertSpaces, "a b  c", "a\\ b\\ \\ c"},
                    Case{"Lower", convert_tolower, "AbZ1\xC3\x84", "abz1\xC3\x84"},
                    Case{"Upper", convert_toupper, "aBz_", "ABZ_"},
                    Case{"FileName", getfilename, "/a/b", "b"}, Case{"FileNameAlone", getfilename, "b", "b"},
                    Case{"FileNameOfDirectory", getfilename, "/a/", ""},
                    Case{"DirectoryName", getdirname, "/a/b", "/a"},
                    Case{"DirectoryNameInRoot", getdirname, "/b", ""},
                    Case{"DirectoryNameAlone", getdirname, "b", "b"}),
    [](const auto& test) { return test.param.name; });

TEST(ReplaceText, ReplacesTheFirstOccurrenceOnly) {
    EXPECT_EQ(replace_text("a b a", "a", "xy"), "xy b a");
    EXPECT_EQ(replace_text("a b", "c", "x"), "a b");
    EXPECT_EQ(replace_text("a b", "", "x"), "a b");
}

struct DotCase {
    const char* path;
    const char* cwd;
    const char* expected;
};

TEST(ReplaceDot, ResolvesAgainstTheDirectory) {
    const DotCase cases[] = {
        {".", "/a/b", "/a/b"},      {"..", "/a/b", "/a"},       {"..", "ab", ".."},
        {"./x", "/a", "/a/x"},      {"../x", "/a/b", "/a/x"},   {"../../x", "/a/b/c", "/a/x"},
        {"../..", "/a/b/c", "/a"},  {"../../../x", "/a/b", ""}, {".profile", "/a", ".profile"},
        {"x/../y", "/a", "x/../y"}, {"/etc", "/a", "/etc"},     {"", "/a", ""},
    };
    for (const DotCase& c : cases) {
        EXPECT_EQ(replace_dot(c.path, c.cwd), c.expected) << c.path << " in " << c.cwd;
    }
}

struct PlaceholderCase {
    const char* command;
    std::string selection;
    std::string tree_name;
    std::string expected;
};

TEST(FixCommand, FillsOnePlaceholder) {
    const PlaceholderCase cases[] = {
        {"ls $$$ $$$", "a", "t", "ls a $$$"},
        {"ls $$$ ???", "a\nb", "t", "ls a ???"},
        {"ls ??? ???", "a", "t", "ls t ???"},
        {"ls ???", "a", "", "ls "},
        {"ls", "a", "t", "ls"},
        {"ls $$$", std::string(1000, 'x'), "t", "ls " + std::string(1000, 'x')},
        {"ls $$$", std::string(1001, 'x'), "t", "ls $$$"},
    };
    for (const PlaceholderCase& c : cases) {
        EXPECT_EQ(fix_command(
                      c.command, [&] { return c.selection; }, [&] { return c.tree_name; }),
                  c.expected);
    }
}

TEST(FixCommand, AsksForNothingItDoesNotNeed) {
    const auto unwanted = []() -> std::string {
        ADD_FAILURE() << "asked for";
        return {};
    };
    EXPECT_EQ(fix_command("ls", unwanted, unwanted), "ls");
    EXPECT_EQ(fix_command(
                  "ls $$$ ???", [] { return std::string("a"); }, unwanted),
              "ls a ???");
}

}  // namespace
