// SPDX-License-Identifier: MIT
#include "app/quoting.h"

#include "terminal/pty.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

const std::vector<std::string> names{
    "plain",
    "/usr/lib/a-b_c.d+e,f:g@h%i=j",
    "two words",
    " leading",
    "trailing ",
    "a'b",
    "a\"b",
    "a`id`b",
    "$(id)",
    "$HOME",
    "${HOME}",
    "a;id",
    "a&b",
    "a|b",
    "a<b>c",
    "a(b)c",
    "a{b,c}d",
    "a[b]c",
    "*",
    "?",
    "~",
    "~root",
    "#x",
    "!x",
    "a!b",
    "!!",
    "^a^b",
    "\\",
    "a\\b",
    "a\\",
    "-x",
    "--",
    "=ls",
    "a\nb",
    "a\\\nb",
    "a\tb",
    "a\rb",
    "\x1b[A",
    "a\x15id",
    "a\x03"
    "b",
    "a\x04"
    "b",
    "a\x16"
    "b",
    "a\x7f"
    "b",
    "\x01",
    "caf\xC3\xA9",
    "\xE4\xBD\xA0\xE5\xA5\xBD",
    "bad\xFF\xFE",
    "\xC2\x9B"
    "31m",
    "cut\xC3",
    "'",
    "''",
    "a' ; id '",
    "$'x'",
    "%1",
    "a b'c\"d\\e!f\ng",
};

/// What a shell must be given so that it reads the name: a leading "-" gets its "./".
std::string as_operand(const std::string& name) { return name.starts_with('-') ? "./" + name : name; }

struct Shell {
    const char* name;
    const char* path;
    std::vector<std::string> arguments;
    int refused;  ///< how many of the names it cannot be given
};

class LiveShell : public testing::TestWithParam<Shell> {
  protected:
    /// Starts the shell with a script `show` in its directory that writes its arguments, each ended by NUL.
    void SetUp() override {
        const fs::path script = directory_.path() / "show";
        std::ofstream(script) << "#!/bin/sh\nprintf '%s\\000' \"$@\" > out.part\nmv out.part out\n";
        fs::permissions(script, fs::perms::owner_all);
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
        const fs::path out = directory_.path() / "out";
        fs::remove(out);
        pty_->write("./show " + word + "\n");
        (void)wait_until([&] {
            drain();
            return fs::exists(out);
        });
        std::ifstream file(out, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    void drain() {
        std::array<char, 4096> buffer{};
        while (pty_->read(buffer).state == terminal::Pty::ReadState::data) {
        }
        pty_->flush();
    }

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
            const auto word = quoting(name, shell_family(GetParam().path));
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
                         testing::Values(Shell{"bash", "/bin/bash", {"bash", "--norc", "-i"}, 0},
                                         Shell{"ksh", "/bin/ksh93", {"ksh93", "-i"}, 0},
                                         Shell{"tcsh", "/bin/tcsh", {"tcsh", "-f"}, 3},
                                         Shell{"zsh", "/bin/zsh", {"zsh", "-f", "-i"}, 0},
                                         Shell{"sh", "/bin/sh", {"sh", "-i"}, 15}),
                         [](const auto& test) { return test.param.name; });

TEST(SystemWord, GivesTheSystemsShellExactlyTheName) {
    const ScratchDirectory directory;
    const std::string out = directory / "out";
    for (const std::string& name : names) {
        const std::string line = "printf '%s\\000' " + system_word(name) + " >" + out;
        ASSERT_EQ(std::system(line.c_str()), 0) << line;
        EXPECT_EQ(read_file(out), as_operand(name) + '\0') << line;
    }
}

TEST(SystemWord, EscapesBlanksAndQuotesWhatTheShellWouldActOn) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"/home/u/.orvik-history", "/home/u/.orvik-history"},
        {"/home/my files/a b", "/home/my\\ files/a\\ b"},
        {"-x y", "./-x\\ y"},
        {"a b;id", "'a b;id'"},
        {"it's", "'it'\\''s'"},
    };
    for (const auto& [name, word] : cases) {
        EXPECT_EQ(system_word(name), word);
    }
    EXPECT_EQ(quoted_word("-fixed-*"), "'-fixed-*'");
    EXPECT_EQ(quoted_word("-fixed-r--13"), "-fixed-r--13");
}

TEST(ShellWord, LeavesOrdinaryNamesAsTheyAre) {
    for (const std::string name : {"/home/u/.orvik-status0", "a.b-c_d+e,f:g@h%i=j", "caf\xC3\xA9"}) {
        EXPECT_EQ(shell_word(name, ShellFamily::other), name);
    }
}

TEST(DoubleQuotedWord, IsUsedWhereDoubleQuotesAreEnough) {
    EXPECT_EQ(double_quoted_word("a b", ShellFamily::bash), "\"a b\"");
    EXPECT_EQ(double_quoted_word("plain", ShellFamily::csh), "\"plain\"");
    EXPECT_EQ(double_quoted_word("$HOME", ShellFamily::bash), "'$HOME'");
    EXPECT_EQ(double_quoted_word("", ShellFamily::bash), std::nullopt);
}

TEST(ShellWord, RefusesWhatAShellCannotBeGiven) {
    EXPECT_EQ(shell_word("", ShellFamily::bash), std::nullopt);
    EXPECT_EQ(shell_word(std::string("a\0b", 3), ShellFamily::bash), std::nullopt);
    EXPECT_EQ(shell_word("a\nb", ShellFamily::other), std::nullopt);
}

TEST(HostName, IsMadeOfNameCharactersOnly) {
    for (const char* good : {"h", "host.example", "me@host", "10.0.0.1", "fe80::1%eth0"}) {
        EXPECT_TRUE(is_host_name(good)) << good;
    }
    for (const char* bad : {"", "-oProxyCommand=id", "a b", "h;id", "$(id)", "h\n", "h/x", "'h'"}) {
        EXPECT_FALSE(is_host_name(bad)) << bad;
    }
}

}  // namespace
