// SPDX-License-Identifier: MIT
// Hostile names typed into real interactive shells.
#include "shell/operands.h"
#include "shell/quoting.h"
#include "terminal/pty.h"
#include "tests/support/hostile_names.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"

#include <array>
#include <filesystem>
#include <functional>

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

/// A shell in a terminal. `show`, a program in its directory, writes its arguments, each ended by NUL.
class LiveShell {
  public:
    LiveShell(const std::string& path, std::vector<std::string> arguments, bool utf8) {
        directory_.write_script("show", "#!/bin/sh\nprintf '%s\\000' \"$@\" > out.part\nmv out.part out\n");
        std::vector<std::string> environment{"PATH=/usr/bin:/bin", "HOME=" + directory_.path().string(),
                                             "TERM=xterm-256color", "USER=u"};
        if (utf8) {
            environment.emplace_back("LC_ALL=C.UTF-8");
        }
        std::string error;
        pty_ = terminal::Pty::start({.path = path,
                                     .arguments = std::move(arguments),
                                     .environment = environment,
                                     .directory = directory_.path()},
                                    {.columns = 200, .rows = 24}, error);
        EXPECT_NE(pty_, nullptr) << error;
    }

    void type(const std::string& line) { pty_->write(line + "\n"); }

    /// What `show` was given by a line.
    std::string shown_by(const std::string& line) {
        const fs::path out = directory_ / "out";
        fs::remove(out);
        type(line);
        (void)wait_until([&] {
            std::array<char, 4096> buffer{};
            while (pty_->read(buffer).state == terminal::Pty::ReadState::data) {
            }
            pty_->flush();
            return fs::exists(out);
        });
        return read_file(out);
    }

    [[nodiscard]] bool has_run_a_name() const { return fs::exists(directory_ / "pwned"); }

  private:
    ScratchDirectory directory_;
    std::unique_ptr<terminal::Pty> pty_;
};

struct ShellRow {
    const char* name;
    const char* path;
    std::vector<std::string> arguments;
    const char* setting;  ///< typed first
};

class TypedNames : public testing::TestWithParam<std::tuple<ShellRow, bool>> {
  protected:
    static const ShellRow& row() { return std::get<0>(GetParam()); }
    static Shell shell() { return {shell_family(row().path), std::get<1>(GetParam())}; }

    void SetUp() override {
        if (!fs::exists(row().path)) {
            GTEST_SKIP() << row().path << " is not installed";
        }
        live_.emplace(row().path, row().arguments, shell().utf8);
        ASSERT_EQ(live_->shown_by(std::string(row().setting) + "\n./show ready"), std::string("ready\0", 6));
    }

    std::optional<LiveShell> live_;
};

using Word = std::optional<std::string>;

/// The commands that bring names to `show`: what stands before and behind each name.
struct Form {
    const char* what;
    std::string head;    ///< of the line
    std::string before;  ///< of each name
    std::string behind;
    std::string tail = {};
    bool in_word = false;  ///< the name is part of a word: "./" is not put before it
    bool all = true;       ///< every name that the shell can be given is given
};

const Form forms[] = {
    {"operand", "./show", " ", ""},
    {"path", "./show", " dir/", "", "", true},
    {"value", "./show", " --file=", "/x", "", true},
    {"double quotes", "./show", " \"", "\""},
    {"single quotes", "./show", " '", "'"},
    {"quoted path", "./show", " \"dir/", "/x\"", "", true},
    {"quoted value", "./show", " 'a=dir/", "'", "", true},
    {"quotes before it", ": 'a b'\"$HOME\" $HOME >&2; ./show", " ", ""},
    {"evaluated", "eval ./show", " ", "", "", false, false},
    {"command in double quotes", "sh -c \"./show", " ", "", "\"", false, false},
    {"command in single quotes", "/bin/sh -c './show", " ", "", "'", false, false},
    {"further on in a quote", "./show", " 'ls ", "'", "", true, false},
};

/// A name's part of a line, and what `show` is then to be given.
struct Typed {
    std::string text;
    std::string argument;
};

/// One line shows as many names as fit.
void expect_shown(LiveShell& live, const Form& form, std::span<const Typed> names) {
    constexpr std::size_t most = 400;
    std::string line;
    std::string expected;
    for (std::size_t at = 0; at < names.size(); ++at) {
        line += names[at].text;
        expected += names[at].argument + '\0';
        if (line.size() >= most || at + 1 == names.size()) {
            const std::string typed = form.head + line + form.tail;
            EXPECT_FALSE(has_control_characters(typed)) << typed;
            ASSERT_EQ(live.shown_by(typed), expected) << form.what << ": " << typed;
            line.clear();
            expected.clear();
        }
    }
}

TEST_P(TypedNames, AreSeenExactly) {
    const std::pair<const char*, Word (*)(std::string_view, const Shell&)> quotings[] = {
        {"word", shell_word}, {"in double quotes", double_quoted_word}, {"with backslashes", escaped_word}};
    for (const auto& [what, quoting] : quotings) {
        std::vector<Typed> typed;
        for (const HostileName& name : hostile_names) {
            const Word word = quoting(name.name, shell());
            EXPECT_EQ(word.has_value(), name.is_for(shell())) << what << ": " << name.what;
            if (word) {
                typed.push_back({" " + *word, as_operand(name.name)});
            }
        }
        expect_shown(*live_, {.what = what, .head = "./show", .before = "", .behind = ""}, typed);
    }
    const std::string as_long_as_ksh_takes(993, 'x');
    EXPECT_EQ(live_->shown_by("./show " + as_long_as_ksh_takes), as_long_as_ksh_takes + '\0');
    EXPECT_FALSE(live_->has_run_a_name());
}

/// What stands around a name in its word, its quotes taken away.
std::string around(std::string text) {
    std::erase_if(text, [](char c) { return c == '"' || c == '\''; });
    return text.substr(text.find_first_not_of(' ') == std::string::npos ? text.size()
                                                                        : text.find_first_not_of(' '));
}

TEST_P(TypedNames, AreSeenExactlyInTheirUsersCommands) {
    for (const Form& form : forms) {
        std::vector<Typed> typed;
        for (const HostileName& name : hostile_names) {
            const Word text = operand_behind(form.head + form.before, name.name, shell());
            if (form.all && shell().family != ShellFamily::unknown) {
                EXPECT_EQ(text.has_value(), name.is_for(shell())) << form.what << ": " << name.what;
            }
            if (text) {
                typed.push_back({form.before + *text + form.behind,
                                 around(form.before) + (form.in_word ? name.name : as_operand(name.name)) +
                                     around(form.behind)});
            }
        }
        EXPECT_FALSE(typed.empty()) << form.what;
        expect_shown(*live_, form, typed);
    }
    EXPECT_FALSE(live_->has_run_a_name());
}

// What these say of most names is an error, or not of the name; none may run.
TEST_P(TypedNames, RunNothingWhereTheyAreReadTwice) {
    if (shell().family == ShellFamily::unknown) {
        GTEST_SKIP() << "it waits for the end of lines in another language";
    }
    const std::pair<const char*, const char*> contexts[] = {
        {"echo $((", "))"},
        {"((", "))"},
        {"x[", "]=1"},
        {"echo ${x[", "]}"},
        {"echo ${x:-", "}"},
        {"echo \"${x:-", "}\""},
        {"echo `echo ", "`"},
        {"echo \"`echo ", "`\""},
        {"echo \"$(echo ", ")\""},
        {"let ", ""},
        {"[[ ", " -eq 1 ]]"},
        {"[ -v ", " ]"},
        {"read ", " </dev/null"},
        {"trap ", " EXIT"},
        {"echo >&", ""},
        {"cat <<< \"", "\""},
        {"sh -c ", ""},
        {"sh -c \"", "\""},
        {"alias xx ", ""},
        {"typeset -i x=", ""},
        {"echo \"x; ", "\" | sh"},
    };
    for (const auto& [before, behind] : contexts) {
        for (const HostileName& name : hostile_names) {
            if (const Word text = operand_behind(before, name.name, shell())) {
                live_->type(before + *text + behind);
            }
        }
        ASSERT_EQ(live_->shown_by("./show ready"), std::string("ready\0", 6)) << before;
        EXPECT_FALSE(live_->has_run_a_name()) << before;
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, TypedNames,
    testing::Combine(
        testing::Values(
            ShellRow{"bash", "/bin/bash", {"bash", "--norc", "-i"}, ""},
            ShellRow{"bash_vi", "/bin/bash", {"bash", "--norc", "-i"}, "set -o vi"},
            ShellRow{"ksh", "/bin/ksh93", {"ksh93", "-i"}, ""},
            ShellRow{"ksh_emacs", "/bin/ksh93", {"ksh93", "-i"}, "set -H -o emacs"},
            ShellRow{"ksh_vi", "/bin/ksh93", {"ksh93", "-i"}, "set -o vi"},
            ShellRow{"zsh", "/bin/zsh", {"zsh", "-f", "-i"}, ""},
            ShellRow{"zsh_options",
                     "/bin/zsh",
                     {"zsh", "-f", "-i"},
                     "setopt rcquotes extendedglob magicequalsubst interactivecomments cshjunkiehistory"},
            ShellRow{"tcsh", "/bin/tcsh", {"tcsh", "-f"}, ""},
            ShellRow{"tcsh_backslash", "/bin/tcsh", {"tcsh", "-f"}, "set backslash_quote"},
            ShellRow{"dash", "/bin/dash", {"dash", "-i"}, ""},
            ShellRow{"busybox", "/bin/busybox", {"busybox", "sh", "-i"}, ""},
            ShellRow{"fish", "/usr/bin/fish", {"fish", "-N", "-i"}, ""}),
        testing::Bool()),
    [](const auto& test) {
        return std::string(std::get<0>(test.param).name) + (std::get<1>(test.param) ? "_UTF8" : "_C");
    });

}  // namespace
