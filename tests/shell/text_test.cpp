// SPDX-License-Identifier: MIT
#include "shell/text.h"

#include <gtest/gtest.h>

namespace {

TEST(TextRoutine, GivesTheExpectedText) {
    const struct {
        const char* name;
        std::string (*routine)(std::string_view);
        std::string input;
        std::string expected;
    } cases[] = {
        {"spaces all go", remove_spaces, " a b\tc\n ", "ab\tc\n"},
        {"nontext goes", remove_nontext, " a\tb\nc ", "abc"},
        {"leading blanks and tabs go", remove_leading_blanks, " \t a b ", "a b "},
        {"leading line feed stays", remove_leading_blanks, "\n a", "\n a"},
        {"trailing blanks go tabs stay", remove_trailing_spaces, "a b\t  ", "a b\t"},
        {"trailing slashes go", remove_trailing_slashes, "/a/b//", "/a/b"},
        {"root becomes empty", remove_trailing_slashes, "/", ""},
        {"block comment blanked", remove_comments1, "a/*b\nc*/d", "a       d"},
        {"block comments each", remove_comments1, "/**/x/*y*/", "    x     "},
        {"block comment overlap is no end", remove_comments1, "a/*/b", "a    "},
        {"block comment without end", remove_comments1, "a /* b\n", "a      "},
        {"line comment keeps line feed", remove_comments2, "a//b\nc // d", "a   \nc     "},
        {"cut at line feed", remove_nl, "first\nsecond\n", "first"},
        {"blanks escaped", ConvertSpaces, "a b  c", "a\\ b\\ \\ c"},
        {"lower", convert_tolower, "AbZ1\xC3\x84", "abz1\xC3\x84"},
        {"upper", convert_toupper, "aBz_", "ABZ_"},
        {"file name", getfilename, "/a/b", "b"},
        {"file name of directory", getfilename, "/a/", ""},
        {"directory name", getdirname, "/a/b", "/a"},
        {"directory name in root", getdirname, "/b", ""},
    };
    for (const auto& [name, routine, input, expected] : cases) {
        EXPECT_EQ(routine(input), expected) << name;
    }
}

TEST(ReplaceText, ReplacesTheFirstOccurrenceOnly) {
    EXPECT_EQ(replace_text("a b a", "a", "xy"), "xy b a");
    EXPECT_EQ(replace_text("a b", "c", "x"), "a b");
    EXPECT_EQ(replace_text("a b", "", "x"), "a b");
}

TEST(ReplaceDot, ResolvesAgainstTheDirectory) {
    const struct {
        const char* path;
        const char* cwd;
        const char* expected;
    } cases[] = {
        {".", "/a/b", "/a/b"},      {"..", "/a/b", "/a"},       {"..", "ab", ".."},
        {"./x", "/a", "/a/x"},      {"../x", "/a/b", "/a/x"},   {"../../x", "/a/b/c", "/a/x"},
        {"../..", "/a/b/c", "/a"},  {"../../../x", "/a/b", ""}, {".profile", "/a", ".profile"},
        {"x/../y", "/a", "x/../y"}, {"/etc", "/a", "/etc"},     {"", "/a", ""},
    };
    for (const auto& [path, cwd, expected] : cases) {
        EXPECT_EQ(replace_dot(path, cwd), expected) << path << " in " << cwd;
    }
}

TEST(FixCommand, FillsOnePlaceholderAndAsksForNothingElse) {
    std::string selection = "a\nb";
    const auto selected = [&] { return selection; };
    const auto unwanted = []() -> std::string {
        ADD_FAILURE() << "asked for";
        return {};
    };
    EXPECT_EQ(fix_command("ls", unwanted, unwanted), "ls");
    EXPECT_EQ(fix_command("ls $$$ $$$ ???", selected, unwanted), "ls a $$$ ???");
    EXPECT_EQ(fix_command("ls ??? ???", unwanted, selected), "ls a\nb ???");
    selection = std::string(1000, 'x');
    EXPECT_EQ(fix_command("ls $$$", selected, unwanted), "ls " + selection);
    selection += 'x';
    EXPECT_EQ(fix_command("ls $$$", selected, unwanted), "ls $$$");
}

}  // namespace
