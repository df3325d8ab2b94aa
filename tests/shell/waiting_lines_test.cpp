// SPDX-License-Identifier: MIT
#include "shell/waiting_lines.h"

#include "shell/foreground.h"
#include "tests/support/wait_until.h"

#include <csignal>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using std::chrono::milliseconds;

constexpr pid_t shell_group = 100;
constexpr pid_t other_group = 200;

PaneUse in_front(bool reads_lines, bool echoes, bool translates_return = true) {
    return {{.reads_lines = reads_lines,
             .echoes = echoes,
             .translates_return = translates_return,
             .group = shell_group},
            /*started=*/true,
            /*in_front=*/true};
}
PaneUse behind(bool reads_lines, bool echoes, bool translates_return = true) {
    PaneUse use = in_front(reads_lines, echoes, translates_return);
    use.group = other_group;
    use.in_front = false;
    return use;
}
PaneUse full_screen(PaneUse use) {
    use.full_screen = true;
    return use;
}

const PaneUse editing = in_front(false, false, false);  // bash at its prompt
const PaneUse plain_prompt = in_front(true, true);      // dash at its prompt
const PaneUse running = behind(true, true);             // sleep, cat, make, a question
const PaneUse asking_password = behind(true, false);
const PaneUse single_keys = behind(false, false);  // less on the main screen
const PaneUse nested_editor = behind(false, false, false);

struct ReaderCase {
    const char* name;
    PaneUse use;
    std::string program;
    Reader reader;
};

TEST(LineReader, TellsWhoReadsCommandLines) {
    const ReaderCase cases[] = {
        {"sleep", running, "sleep", Reader::none},
        {"password", asking_password, "su", Reader::none},
        {"vim", full_screen(nested_editor), "vim", Reader::none},
        {"less", full_screen(single_keys), "less", Reader::none},
        {"less on the main screen", single_keys, "less", Reader::none},
        {"git with its pager", single_keys, "git", Reader::none},
        {"vim on the main screen", nested_editor, "vim", Reader::none},
        {"question for a key that is echoed", behind(false, true), "bash", Reader::none},
        {"nested bash", nested_editor, "bash", Reader::near_shell},
        {"nested zsh", single_keys, "zsh", Reader::near_shell},
        {"script of bash", running, "bash", Reader::none},
        {"ssh", nested_editor, "ssh", Reader::far_shell},
        {"vim in ssh", full_screen(nested_editor), "ssh", Reader::none},
        {"python", nested_editor, "python3", Reader::line_editor},
        {"dash at its prompt", plain_prompt, "dash", Reader::shell},
        {"its password", in_front(true, false), "dash", Reader::none},
        {"bash at its prompt", editing, "bash", Reader::shell},
        {"after a killed editor", full_screen(editing), "bash", Reader::shell},
        {"read in bash", plain_prompt, "bash", Reader::working_shell},
        {"read -n 1 in bash", in_front(false, true), "bash", Reader::none},
        {"dash in the place of bash", plain_prompt, "dash", Reader::shell},
    };
    std::string program;
    LineReader reader([&](pid_t) { return program; });
    for (const ReaderCase& each : cases) {
        SCOPED_TRACE(each.name);
        program = each.program;
        EXPECT_EQ(reader.look(each.use), each.reader);
    }
    reader.shell_started();
    program = "bash";
    EXPECT_EQ(reader.look(plain_prompt), Reader::shell) << "one of which nothing is known yet";
}

TEST(ProgramName, IsTheForegroundPrograms) {
    EXPECT_EQ(program_name(-1), "");
    const pid_t leader = fork();
    ASSERT_GE(leader, 0);
    if (leader == 0) {
        setpgid(0, 0);
        if (fork() == 0) {
            execl("/bin/sleep", "sleep", "60", nullptr);
        }
        _exit(0);
    }
    setpgid(leader, leader);
    ASSERT_EQ(waitpid(leader, nullptr, 0), leader);
    const auto named_sleep = [&] { return program_name(leader) == "sleep"; };
    EXPECT_TRUE(wait_until(named_sleep)) << "the leader has ended";
    kill(-leader, SIGKILL);
}

TEST(ProgramName, IsLookedForInTheBackground) {
    const pid_t leader = fork();
    ASSERT_GE(leader, 0);
    if (leader == 0) {
        setsid();
        if (fork() == 0) {
            setpgid(0, 0);
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            execl("/bin/sleep", "sleep", "60", nullptr);
        }
        pause();
        _exit(0);
    }
    ASSERT_TRUE(wait_until([&] { return getsid(leader) == leader; }));
    EXPECT_TRUE(wait_until([&] { return works_in_background(leader, "sleep"); }));
    EXPECT_FALSE(works_in_background(leader, "svn"));
    EXPECT_EQ(kill(leader, SIGKILL), 0);
    EXPECT_EQ(waitpid(leader, nullptr, 0), leader);
}

class WaitingLinesTest : public testing::Test {
  protected:
    /// Time passes, with a look at its end.
    void after(int ms) {
        now += milliseconds(ms);
        lines.look();
    }
    void becomes(const PaneUse& next, const std::string& name) {
        use = next;
        program = name;
        lines.look();
    }
    void submit(const char* line, const char* behind = "") { lines.submit({.text = line, .behind = behind}); }
    void hook_runs() { ++stamp.modified; }
    /// What has been given since the last question.
    std::string given() { return std::exchange(given_, {}); }

    PaneUse use = editing;
    std::string program = "bash";
    std::string in_background;
    bool half_typed = false;
    FileStamp stamp{.inode = 1, .modified = 1};
    WaitingLines::Clock::time_point now{};
    int changes = 0;
    std::string given_;
    WaitingLines lines{{.use = [this] { return use; },
                        .program_name = [this](pid_t) { return program; },
                        .works_in_background =
                            [this](pid_t group, const std::string& behind) {
                                return group == use.group && behind == in_background;
                            },
                        .half_typed = [this] { return half_typed; },
                        .hook_stamp = [this] { return stamp; },
                        .give = [this](const std::string& line) { given_ += line; },
                        .changed = [this] { ++changes; },
                        .now = [this] { return now; }}};
};

TEST_F(WaitingLinesTest, AreGivenOneByOneAfterTheHookHasRun) {
    lines.hook_typed();
    hook_runs();
    submit("one\n");
    EXPECT_EQ(given(), "one\n") << "at once";
    submit("two\n");
    submit("three\n");
    after(900);
    EXPECT_EQ(given(), "");
    becomes(running, "one");
    hook_runs();
    lines.look();
    EXPECT_EQ(given(), "") << "its program runs still";
    becomes(editing, "bash");
    EXPECT_EQ(given(), "two\n");
    hook_runs();
    lines.look();
    EXPECT_EQ(given(), "three\n");
    now += std::chrono::hours(1);
    hook_runs();
    submit("four\n");
    EXPECT_EQ(given(), "four\n");
}

TEST_F(WaitingLinesTest, DoNotNeedAHook) {
    for (const PaneUse& prompt : {editing, plain_prompt}) {
        lines.shell_started();
        use = prompt;
        submit("one\n");
        submit("two\n");
        after(149);
        EXPECT_EQ(given(), "one\n");
        after(1);
        EXPECT_EQ(given(), "two\n");
        after(150);
    }
}

TEST_F(WaitingLinesTest, AreNotStoppedByAHookThatWasTakenAway) {
    lines.hook_typed();
    hook_runs();
    submit("unset PROMPT_COMMAND\n");
    submit("two\n");
    submit("three\n");
    after(999);
    EXPECT_EQ(given(), "unset PROMPT_COMMAND\n");
    after(1);
    EXPECT_EQ(given(), "two\n");
    after(150);
    EXPECT_EQ(given(), "three\n") << "it is not waited for again";
}

TEST_F(WaitingLinesTest, FollowWhatTheUserHasSentOff) {
    lines.hook_typed();
    hook_runs();
    lines.user_ended_line();
    submit("one\n");
    EXPECT_EQ(given(), "");
    hook_runs();
    lines.look();
    EXPECT_EQ(given(), "one\n");
}

TEST_F(WaitingLinesTest, TakeLongerWhereTheShellIsFar) {
    becomes(nested_editor, "ssh");
    submit("one\n");
    submit("two\n");
    after(999);
    EXPECT_EQ(given(), "one\n");
    after(1);
    EXPECT_EQ(given(), "two\n");
}

TEST_F(WaitingLinesTest, TellWhatTheyWaitFor) {
    becomes(running, "make");
    submit("\nsvn commit\n");
    EXPECT_FALSE(lines.is_stalled());
    after(250);
    EXPECT_TRUE(lines.is_stalled());
    EXPECT_EQ(lines.announcement(), "1 line waits for make: svn commit");
    submit("ls\n");
    EXPECT_EQ(lines.announcement(), "2 lines wait for make: svn commit");
    lines.drop(0);
    lines.drop(7);
    half_typed = true;
    becomes(editing, "bash");
    EXPECT_EQ(lines.announcement(), "1 line waits for the command you are typing: ls");
    EXPECT_EQ(given(), "");
    half_typed = false;
    lines.look();
    EXPECT_EQ(given(), "ls\n");
    EXPECT_EQ(lines.announcement(), "");
    use.started = false;
    program = "";
    submit("source x\n");
    EXPECT_EQ(lines.announcement(), "1 line waits for the shell: source x");
}

TEST_F(WaitingLinesTest, WaitForAProgramInTheBackground) {
    submit("svn commit a &\n", "svn");
    submit("svn commit b &\n", "svn");
    EXPECT_EQ(given(), "svn commit a &\n");
    after(249);
    EXPECT_EQ(given(), "") << "svn may not have started yet";
    in_background = "svn";
    after(1000);
    EXPECT_EQ(given(), "");
    EXPECT_EQ(lines.announcement(), "1 line waits for svn: svn commit b &");
    in_background = "";
    lines.look();
    EXPECT_EQ(given(), "svn commit b &\n");
}

TEST_F(WaitingLinesTest, GoWhereTheirUserSendsThem) {
    becomes(running, "cat");
    submit("one\n");
    submit("two\n");
    submit("three\n");
    lines.send_first();
    EXPECT_EQ(given(), "one\n");
    changes = 0;
    EXPECT_EQ(lines.drop_all(), 2U);
    EXPECT_EQ(changes, 1);
    lines.send_first();
    becomes(editing, "bash");
    after(5000);
    EXPECT_EQ(given(), "");
    lines.set_hold(false);
    becomes(running, "cat");
    submit("one\n");
    submit("two\n");
    EXPECT_EQ(given(), "one\ntwo\n");
    use.started = false;
    submit("three\n");
    EXPECT_EQ(given(), "") << "no shell has started yet";
}

}  // namespace
