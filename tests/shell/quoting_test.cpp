// SPDX-License-Identifier: MIT
#include "shell/quoting.h"

#include "shell/operands.h"
#include "terminal/pty.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"

#include <array>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const std::string names[] = {"plain",       "/a-b_c.d+e,f:g@h%i=j",
                             "two words",   " leading",
                             "trailing ",   "a'b",
                             "a\"b",        "a`id`b",
                             "$(id)",       "${HOME}",
                             "a;id",        "a&b",
                             "a|b",         "a<b>c",
                             "a{b,c}d",     "a[b]c",
                             "*",           "~",
                             "#x",          "!x",
                             "a!b",         "^a^b",
                             "\\",          "a\\b",
                             "a\\",         "-x",
                             "=ls",         "a\nb",
                             "a\\\nb",      "a\tb",
                             "a\rb",        "\x1b[A",
                             "a\x15id",     "ab\x03",
                             "ab\x04",      "ab\x16",
                             "ab\x7f",      "\x01",
                             "caf\xC3\xA9", "\xE4\xBD\xA0",
                             "bad\xFF\xFE", "31m\xC2\x9B",
                             "cut\xC3",     "''",
                             "a' ; id '",   "$'x'",
                             "%1",          "a 'c\"d\\!f\ng"};

/// What a shell must be given so that it reads the name: a leading "-" gets its "./".
std::string as_operand(const std::string& name) { return name.starts_with('-') ? "./" + name : name; }

struct LiveShellRow {
    const char* name;
    const char* path;
    std::vector<std::string> arguments;
    int refused;  ///< how many of the names it cannot be given
};

class LiveShell : public testing::TestWithParam<LiveShellRow> {
  protected:
    /// Starts the shell with a script `show` in its directory that writes its arguments, each ended by NUL.
    void SetUp() override {
        directory_.write_script("show", "#!/bin/sh\nprintf '%s\\000' \"$@\" > out.part\nmv out.part out\n");
        std::string error;
        pty_ =
            terminal::Pty::start({.path = GetParam().path,
                                  .arguments = GetParam().arguments,
                                  .environment = {"PATH=/usr/bin:/bin", "HOME=" + directory_.path().string(),
                                                  "LC_ALL=C.UTF-8", "TERM=xterm-256color", "USER=u"},
                                  .directory = directory_.path()},
                                 {.columns = 200, .rows = 24}, error);
        ASSERT_NE(pty_, nullptr) << error;
    }

    /// What `show` was given for a typed word.
    std::string arguments_for(const std::string& word) {
        const fs::path out = directory_ / "out";
        fs::remove(out);
        pty_->write("./show " + word + "\n");
        (void)wait_until([&] {
            std::array<char, 4096> buffer{};
            while (pty_->read(buffer).state == terminal::Pty::ReadState::data) {
            }
            pty_->flush();
            return fs::exists(out);
        });
        return read_file(out);
    }

  private:
    ScratchDirectory directory_;
    std::unique_ptr<terminal::Pty> pty_;
};

TEST_P(LiveShell, SeesExactlyTheNameThatWasTyped) {
    if (!fs::exists(GetParam().path)) {
        GTEST_SKIP() << GetParam().path << " is not installed";
    }
    for (const auto quoting : {shell_word, double_quoted_word}) {
        int refused = 0;
        for (const std::string& name : names) {
            const auto word = quoting(name, Shell{shell_family(GetParam().path), true});
            if (!word) {
                ++refused;
                continue;
            }
            EXPECT_FALSE(has_control_characters(*word)) << *word;
            EXPECT_EQ(arguments_for(*word), as_operand(name) + '\0') << *word;
        }
        EXPECT_EQ(refused, GetParam().refused);
    }
}

INSTANTIATE_TEST_SUITE_P(All, LiveShell,
                         testing::Values(LiveShellRow{"bash", "/bin/bash", {"bash", "--norc", "-i"}, 0},
                                         LiveShellRow{"ksh", "/bin/ksh93", {"ksh93", "-i"}, 0},
                                         LiveShellRow{"tcsh", "/bin/tcsh", {"tcsh", "-f"}, 3},
                                         LiveShellRow{"zsh", "/bin/zsh", {"zsh", "-f", "-i"}, 0},
                                         LiveShellRow{"sh", "/bin/sh", {"sh", "-i"}, 15}),
                         [](const auto& test) { return test.param.name; });

TEST(SystemWord, GivesTheSystemsShellExactlyTheName) {
    const ScratchDirectory directory;
    const std::string out = directory / "out";
    for (const std::string& name : names) {
        const std::string line = "printf '%s\\000' " + script_word(name, ShellFamily::other) + " >" + out;
        ASSERT_EQ(std::system(line.c_str()), 0) << line;
        EXPECT_EQ(read_file(out), as_operand(name) + '\0') << line;
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

// Where the shell acted on the name, it would run "id".
TEST(Operand, IsNotPutWhereTheShellMightActOnIt) {
    const std::string inert = "a;id";
    const struct {
        std::string before;
        std::string name;
        Shell shell;
        std::optional<std::string> operand;
    } cases[] = {
        {"vi ", inert, Shell{ShellFamily::bash, true}, "'a;id'"},
        {"vi \"$x", inert, Shell{ShellFamily::bash, true}, inert},
        {"vi '$(`\\' ", inert, Shell{ShellFamily::bash, true}, "'a;id'"},
        {"vi \\", inert, Shell{ShellFamily::bash, true}, std::nullopt},
        {"vi \\\\", inert, Shell{ShellFamily::bash, true}, "'a;id'"},
        {"vi $", "a\\';id;'", Shell{ShellFamily::bash, true}, std::nullopt},
        {"vi $$", inert, Shell{ShellFamily::bash, true}, "'a;id'"},
        {"vi \"$", "(id)", Shell{ShellFamily::bash, true}, std::nullopt},
        {"vi \"$(cat ", inert, Shell{ShellFamily::bash, true}, std::nullopt},
        {"vi \"$(cat ", "ordinary", Shell{ShellFamily::bash, true}, "ordinary"},
        {"vi `cat ", "a`;id;`", Shell{ShellFamily::bash, true}, std::nullopt},
        {"vi $'it\\'s ", inert, Shell{ShellFamily::bash, true}, inert},
        {"vi $'it\\'s ", inert, Shell{ShellFamily::other, true}, "'a;id'"},
        {"vi \"a\\\"", inert, Shell{ShellFamily::csh, true}, std::nullopt},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(operand_behind(row.before, row.name, row.shell), row.operand) << row.before;
    }
}

}  // namespace
