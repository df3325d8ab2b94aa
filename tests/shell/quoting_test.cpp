// SPDX-License-Identifier: MIT
#include "shell/quoting.h"

#include "shell/operands.h"
#include "tests/support/hostile_names.h"
#include "tests/support/scratch_directory.h"

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

/// A reader of scripts: what it is started with, and what stands before the command.
struct ScriptReader {
    ShellFamily family;
    const char* command;
    const char* head;
};

TEST(ScriptWord, GivesAnyShellExactlyTheName) {
    const ScriptReader readers[] = {
        {ShellFamily::other, "LC_ALL=C.UTF-8 /bin/sh", ""},
        {ShellFamily::bash, "LC_ALL=C bash", ""},
        {ShellFamily::ksh, "LC_ALL=C.UTF-8 ksh93", ""},
        {ShellFamily::zsh, "LC_ALL=C zsh -f", ""},
        {ShellFamily::csh, "LC_ALL=C.UTF-8 tcsh -f", "#\n"},
        {ShellFamily::csh, "LC_ALL=C tcsh -f", "#\n"},
        {ShellFamily::csh, "LC_ALL=C.UTF-8 tcsh -f", "#\nset backslash_quote\n"},
    };
    const ScratchDirectory directory;
    for (const ScriptReader& reader : readers) {
        std::string script = reader.head;
        std::string expected;
        for (const HostileName& row : hostile_names) {
            script += "printf '%s\\000%s\\000' " + script_word(row.name, reader.family) + ' ' +
                      script_double_quoted(row.name, reader.family) + " >>out\n";
            expected += as_operand(row.name) + '\0' + as_operand(row.name) + '\0';
        }
        directory.write("script", script);
        const std::string line =
            "cd " + directory.path().string() + " && rm -f out && " + reader.command + " script";
        EXPECT_EQ(std::system(line.c_str()), 0) << line;
        EXPECT_EQ(read_file(directory / "out"), expected) << line;
    }
}

TEST(Word, HasTheSimplestFormThatWillDo) {
    using Word = std::optional<std::string>;
    const std::string nul("a\0b", 3);
    const std::pair<Word, Word> cases[] = {
        {script_word("/home/u/.orvik-history", ShellFamily::other), "/home/u/.orvik-history"},
        {script_word("/home/my files/a b", ShellFamily::other), "/home/my\\ files/a\\ b"},
        {script_word("-x y", ShellFamily::other), "./-x\\ y"},
        {script_word("a b;c's", ShellFamily::other), "'a b;c'\\''s'"},
        {script_word("a!b c", ShellFamily::csh), "'a\\!b c'"},
        {script_word("a\\!b", ShellFamily::csh), "$'a\\134\\041b'"},
        {script_text("-fixed-*", ShellFamily::other), "'-fixed-*'"},
        {script_text("-fixed-r--13", ShellFamily::other), "-fixed-r--13"},
        {shell_word("a.b-c_d+e,f:g@h%i=j/caf\xC3\xA9", Shell{ShellFamily::other, true}),
         "a.b-c_d+e,f:g@h%i=j/caf\xC3\xA9"},
        {shell_word("", Shell{ShellFamily::bash, true}), std::nullopt},
        {shell_word(nul, Shell{ShellFamily::bash, true}), std::nullopt},
        {shell_word("a\nb", Shell{ShellFamily::other, true}), std::nullopt},
        {double_quoted_word("a b", Shell{ShellFamily::bash, true}), "\"a b\""},
        {double_quoted_word("plain", Shell{ShellFamily::csh, true}), "\"plain\""},
        {double_quoted_word("$HOME", Shell{ShellFamily::bash, true}), "'$HOME'"},
        {double_quoted_word("", Shell{ShellFamily::bash, true}), std::nullopt},
    };
    for (const auto& [word, expected] : cases) {
        EXPECT_EQ(word, expected);
    }
}

TEST(HostName, IsMadeOfNameCharactersOnly) {
    for (const char* good : {"h", "host.example", "me@host", "10.0.0.1", "fe80::1%eth0"}) {
        EXPECT_TRUE(is_host_name(good)) << good;
    }
    for (const char* bad : {"", "-oProxyCommand=id", "a b", "h;id", "$(id)", "h\n", "h/x", "'h'"}) {
        EXPECT_FALSE(is_host_name(bad)) << bad;
    }
}

TEST(Operand, IsGivenWhereTheShellTakesItForAName) {
    using Word = std::optional<std::string>;
    const std::string inert = "a;id";
    const Word nothing;
    constexpr Shell bash{ShellFamily::bash, true};
    constexpr Shell csh{ShellFamily::csh, true};
    constexpr Shell zsh{ShellFamily::zsh, true};
    constexpr Shell other{ShellFamily::other, true};
    const struct {
        std::string before;
        std::string name;
        Shell shell;
        Word operand;
    } cases[] = {
        {"vi ", inert, bash, "'a;id'"},
        {"vi \"", inert, bash, inert},
        {"vi \"dir/", inert, bash, inert},
        {"vi '$(`\\' ", inert, bash, "'a;id'"},
        {"vi \"${HOME}\"/", inert, bash, "'a;id'"},
        {"vi $$", inert, bash, "'a;id'"},
        {"vi \\\\", inert, bash, "'a;id'"},
        {"vi $'it\\'s' ", inert, bash, "'a;id'"},
        {"vi $'it\\'s' ", "ordinary", other, "ordinary"},
        {"(cd x && vi ", inert, bash, "'a;id'"},
        {"[ -f ", inert, bash, "'a;id'"},
        {"make 2>&1 | tee ", inert, bash, "'a;id'"},
        {"sh -c x; vi ", inert, bash, "'a;id'"},
        {"sh ", inert, bash, "'a;id'"},
        {"gcc -c ", inert, bash, "'a;id'"},
        {"make ", inert, bash, "'a;id'"},
        {"cd src/sh; gcc -c ", inert, bash, "'a;id'"},
        // the quote closed and opened again
        {"vi \"", "$(id)", bash, "\"'$(id)'\""},
        {"vi '", "it's", bash, "it'\\''s"},
        {"vi '", "a\nb", bash, "'$'a\\012b''"},
        {"vi '", "-x y", bash, "./-x y"},
        {"vi --file='", "-x y", bash, "-x y"},
        {"vi dir/", "-x y", bash, "'-x y'"},
        // the first characters taken for something else
        {"vi \\", "ordinary", bash, nothing},
        {"vi $", "HOME", bash, nothing},
        {"vi $x", "ordinary", bash, nothing},
        {"vi $x$", inert, bash, nothing},
        {"vi \"$x", inert, bash, nothing},
        {"vi $x:", "ordinary", csh, nothing},
        {"vi ~", "root", bash, nothing},
        // within more than a quote
        {"vi \"$", "(id)", bash, nothing},
        {"vi \"$(cat ", inert, bash, nothing},
        {"vi \"$(cat ", "ordinary", bash, "ordinary"},
        {"vi `cat ", "a`;id;`", bash, nothing},
        {"vi \"${x:-\"", inert, bash, nothing},
        {"vi $'", inert, bash, nothing},
        {"vi \"a\\\"", inert, csh, nothing},
        {"vi 'a\\' ", inert, csh, nothing},
        {"vi ''", inert, zsh, nothing},
        {"cat <<< ", inert, bash, nothing},
        // read a second time
        {"foo 'ls ", inert, bash, nothing},
        {"foo 'ls ", "-x", bash, nothing},
        {"sh -c \"", inert, bash, nothing},
        {"find . -exec /bin/bash -ec '", inert, bash, nothing},
        {"ssh host cat ", inert, bash, nothing},
        {"scp host:", inert, bash, nothing},
        {"make X=", inert, bash, nothing},
        {"eval vi ", inert, bash, nothing},
        {"eval vi ", "ordinary", bash, "ordinary"},
        {"echo \"$((", "a=b", bash, nothing},
        {"echo $((", "a[$(id)]", bash, nothing},
        {"x[", "$(id)", bash, nothing},
        {"ls >& dir/", "$(id)", bash, nothing},
        {"ls >& dir/", inert, zsh, "'a;id'"},
        {"vi ", inert, {ShellFamily::unknown, true}, nothing},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(operand_behind(row.before, row.name, row.shell), row.operand) << row.before;
    }
}

}  // namespace
