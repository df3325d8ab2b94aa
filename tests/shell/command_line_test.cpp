// SPDX-License-Identifier: MIT
#include "shell/command_line.h"

#include <gtest/gtest.h>

namespace {

constexpr Shell bash{ShellFamily::bash, true};

struct Case {
    CommandLine line;
    std::string typed;
    std::string read;
};

TEST(CommandLine, WritesOperandsForItsReader) {
    const Case cases[] = {
        {CommandLine("cp").path("a").word("."), "cp a .", "cp a ."},
        {CommandLine("cp").path("a b").path("c\nd"), "cp 'a b' $'c\\012d'", "cp a\\ b 'c\nd'"},
        {CommandLine("rm").path("-rf"), "rm ./-rf", "rm ./-rf"},
        {CommandLine("cd").double_quoted("a b"), "cd \"a b\"", "cd \"a b\""},
        {CommandLine("cd").double_quoted("$(id)"), "cd '$(id)'", "cd '$(id)'"},
        {CommandLine("vi").escaped("a b").in_background(), "vi a\\ b &", "vi a\\ b &"},
        {CommandLine("vi").escaped("a;b"), "vi 'a;b'", "vi 'a;b'"},
        {CommandLine("svn update").peg("a@2"), "svn update a@2@", "svn update a@2@"},
        {CommandLine("svn update").peg("src"), "svn update src", "svn update src"},
        {CommandLine("svn add").double_quoted_peg("a b@2"), "svn add \"a b@2@\"", "svn add \"a b@2@\""},
        {CommandLine("svn ci -m").double_quoted_text("-x y"), "svn ci -m \"-x y\"", "svn ci -m '-x y'"},
        {CommandLine("svn ci -m").double_quoted_text("`x`!"), "svn ci -m $'\\140x\\140\\041'",
         "svn ci -m '`x`!'"},
        {CommandLine("xterm -fn").text("-misc-*"), "xterm -fn '-misc-*'", "xterm -fn '-misc-*'"},
        {CommandLine("rlogin").host("me@host"), "rlogin me@host", "rlogin me@host"},
        {CommandLine("head").numbers("-{}", 5).path("x"), "head -5 x", "head -5 x"},
        {CommandLine("rm").raw("a; b*"), "rm a; b*", "rm a; b*"},
        {CommandLine::of_user("  ls $x"), "  ls $x", "  ls $x"},
    };
    for (const Case& row : cases) {
        EXPECT_EQ(row.line.typed_into(bash).text, row.typed);
        EXPECT_EQ(row.line.read_by(ShellFamily::other).text, row.read);
        EXPECT_EQ(row.line.typed_into(bash).refusal, "");
    }
}

TEST(CommandLine, IsRefusedForAnOperandThatTheShellCannotBeGiven) {
    const std::pair<CommandLine, std::string> cases[] = {
        {CommandLine("cat").path("a\nb").word("-"), "Name can't be typed into the shell: a\nb"},
        {CommandLine("cat").path(""), "Name can't be typed into the shell: "},
        {CommandLine("rlogin").host("-oProxyCommand=id"), "Illegal host name: -oProxyCommand=id"},
        {CommandLine("rlogin").host("a;id"), "Illegal host name: a;id"},
    };
    for (const auto& [line, refusal] : cases) {
        const ComposedLine composed = line.typed_into({ShellFamily::other, true});
        EXPECT_EQ(composed.text, "");
        EXPECT_EQ(composed.refusal, refusal);
    }
}

}  // namespace
