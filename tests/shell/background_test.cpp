// SPDX-License-Identifier: MIT
#include "shell/background.h"

#include "shell/command_line.h"
#include "shell/detached.h"
#include "shell/process.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"
#include "ui/message_board.h"
#include "ui/windows.h"

#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>

#include <fcntl.h>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Background : public testing::Test {
  protected:
    void SetUp() override { create_windows(); }
    void TearDown() override { destroy_windows(); }

    /// What a command wrote to "result" in the scratch directory. The file appears when it is complete.
    std::string result() const {
        EXPECT_TRUE(wait_until([this] { return std::filesystem::exists(home_ / "result"); }));
        return read_file(home_ / "result");
    }
    /// A command line that gives the output of `commands` to `result`.
    std::string recorded(const std::string& commands) const {
        const std::string directory = home_.path();
        return fmt::format("cd {} && {{ {}; }} >part && mv part result", directory, commands);
    }

    const ScratchDirectory home_;
};

TEST_F(Background, TheLineIsShownAndRun) {
    setenv("ORVIK_TEST", "the user's own", 1);
    const std::string command = recorded("echo \"$ORVIK_TEST\"; pwd");
    run_in_background(CommandLine::of_user(command));
    EXPECT_EQ(message_board().text.text(), command + " &\n");
    EXPECT_EQ(result(), "the user's own\n" + home_.path().string() + "\n");
    unsetenv("ORVIK_TEST");
}

TEST_F(Background, AnEarlyFailureIsTold) {
    const struct {
        std::string command;
        std::string told;
    } cases[] = {
        {"true; echo fine >&2", ""},
        {"exit 3", "Failed with status 3: exit 3\n"},
        {"kill -9 $$", "Failed with status 137: kill -9 $$\n"},
        {"echo one >&2; printf 'two\\033\\n' >&2; exit 1",
         "Failed with status 1: echo one >&2; printf 'two\\033\\n' >&2; exit 1\ntwo \n"},
        {"(sleep 9 & ) ; no-such-program x",
         "Failed with status 127: (sleep 9 & ) ; no-such-program x\nsh: 1: no-such-program: not found\n"},
        {"sh -c 'exec ./plain'",
         "Failed with status 127: sh -c 'exec ./plain'\nsh: 1: exec: ./plain: not found\n"},
    };
    for (const auto& row : cases) {
        const std::string shown = row.command + " &\n";
        textsw_reset(message_board().text);
        run_in_background(CommandLine::of_user(row.command));
        run_in_background(CommandLine::of_user(recorded("true")));
        const std::string both = shown + recorded("true") + " &\n" + row.told;
        EXPECT_EQ(result(), "");
        EXPECT_TRUE(wait_until([&] { return message_board().text.text() == both; }, patience,
                               [] { QTest::qWait(5); }))
            << message_board().text.text();
        std::filesystem::remove(home_ / "result");
    }
}

TEST_F(Background, AFailureIsWatchedForTwoSecondsAndErrorsArePassedOn) {
    const DetachedShell late = start_detached_shell(recorded("sleep 2.2; exit 1"));
    EXPECT_EQ(early_failure(late.outcome), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists(home_ / "result")) << "the answer comes before the end";

    // A process that stands for the tool, with a standard error of its own, ends at once.
    std::array<int, 2> errors{};
    ASSERT_EQ(pipe2(errors.data(), O_CLOEXEC), 0);
    const pid_t tool = fork();
    if (tool == 0) {
        dup2(errors[1], STDERR_FILENO);
        _exit(start_detached_shell("echo early >&2; sleep 2.2; echo late >&2; exit 1").error);
    }
    close(errors[1]);
    ASSERT_EQ(waitpid(tool, nullptr, 0), tool);
    std::string passed_on;
    std::array<char, 100> text{};
    for (ssize_t count = 0; (count = read(errors[0], text.data(), text.size())) > 0;) {
        passed_on.append(text.data(), static_cast<std::size_t>(count));
    }
    close(errors[0]);
    EXPECT_EQ(passed_on, "early\nlate\n");

    // Nobody reads there any more: what a program writes does not end it.
    ASSERT_EQ(pipe2(errors.data(), O_CLOEXEC), 0);
    const pid_t closed = fork();
    if (closed == 0) {
        dup2(errors[1], STDERR_FILENO);
        _exit(start_detached_shell("sleep 2.2; for n in 1 2 3; do /bin/echo x >&2 || exit; sleep .1; done; " +
                                   recorded("echo alive"))
                  .error);
    }
    close(errors[0]);
    close(errors[1]);
    ASSERT_EQ(waitpid(closed, nullptr, 0), closed);
    std::filesystem::remove(home_ / "result");
    EXPECT_EQ(result(), "alive\n");
}

TEST_F(Background, TheToolsOwnCommandsAreFoundFirst) {
    home_.write_script("bin/open", "#!/bin/sh\necho ours\n");
    orvik_home = home_.path();
    run_in_background(CommandLine::of_user(recorded("open; command -v env")));
    orvik_home.clear();
    EXPECT_EQ(result(), "ours\n/usr/bin/env\n");
}

TEST_F(Background, NothingOfTheToolIsInherited) {
    const int inherited = fcntl(STDERR_FILENO, F_DUPFD, 100);  // a descriptor without close-on-exec
    ASSERT_GE(inherited, 100);
    std::signal(SIGINT, SIG_IGN);
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGUSR2);
    sigprocmask(SIG_BLOCK, &blocked, nullptr);

    // Descriptors are looked at with what the shell has built in, before it opens anything itself.
    run_in_background(CommandLine::of_user(
        "n=3; open=none; while [ $n -lt 256 ]; do [ -e /proc/$$/fd/$n ] && open=$n; n=$((n+1)); done; " +
        recorded(fmt::format("grep -E 'Sig(Blk|Ign)' /proc/self/status; readlink /proc/self/fd/0; "
                             "ps -o tty= -p $$; [ $(ps -o sid= -p $$) != {} ]; echo $? $open",
                             getsid(0)))));
    EXPECT_EQ(result(), "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n/dev/null\n?\n0 none\n");
    sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
    std::signal(SIGINT, SIG_DFL);
    close(inherited);
}

TEST_F(Background, NoChildIsLeftAndNobodyIsWaitedFor) {
    const auto has_children = [] {
        siginfo_t info{};
        return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0 || errno != ECHILD;
    };
    ASSERT_FALSE(has_children());
    const auto start = std::chrono::steady_clock::now();
    run_in_background(CommandLine("sleep 5; true"));
    run_in_background(CommandLine("exit 3"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{4});
    EXPECT_FALSE(has_children());
}

TEST_F(Background, AProgramOutlivesTheToolAndItsTerminal) {
    const std::string go = home_ / "go";
    ASSERT_EQ(mkfifo(go.c_str(), 0600), 0);
    const std::string line = recorded("read word <go; echo alive: $word");
    const pid_t tool = fork();
    if (tool == 0) {  // stands for the tool: its group is hung up as its terminal would do it
        setsid();
        std::signal(SIGHUP, SIG_DFL);
        if (start_detached_shell(line).error == 0) {
            kill(0, SIGHUP);
        }
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(tool, &status, 0), tool);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGHUP);
    std::ofstream(go) << "yes\n";  // as soon as somebody reads there
    EXPECT_EQ(result(), "alive: yes\n");
}

TEST_F(Background, AShellThatCannotBeStartedIsReported) {
    const std::string endless(200'000, 'x');  // more than one argument may hold
    run_in_background(CommandLine::of_user(endless));
    EXPECT_EQ(message_board().text.text(),
              endless + " &\nNo shell could be started for it: Argument list too long\n");

    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const rlimit none{.rlim_cur = 0, .rlim_max = limit.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    EXPECT_EQ(start_detached_shell("true").error, EMFILE);
    setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace
