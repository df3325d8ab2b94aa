// SPDX-License-Identifier: MIT
#include "shell/background.h"

#include "shell/command_line.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"
#include "ui/message_board.h"
#include "ui/windows.h"

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
        if (start_detached_shell(line) == 0) {
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
    EXPECT_EQ(start_detached_shell("true"), EMFILE);
    setrlimit(RLIMIT_NOFILE, &limit);
}

}  // namespace
