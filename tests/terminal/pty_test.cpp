// SPDX-License-Identifier: MIT
#include "terminal/pty.h"

#include <array>
#include <chrono>
#include <functional>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace terminal {
namespace {

using namespace std::chrono_literals;
constexpr auto deadline = 20s;

/// A program on a pty, with all it wrote so far.
class Running {
  public:
    explicit Running(const Program& program, Size size = {}) {
        std::string error;
        pty_ = Pty::start(program, size, error);
        EXPECT_TRUE(pty_) << error;
    }
    explicit Running(const std::string& script)
        : Running(Program{"/bin/sh", {"sh", "-c", script}, {"PATH=/usr/bin:/bin"}, "/"}) {}

    Pty& operator*() { return *pty_; }
    Pty* operator->() { return pty_.get(); }
    void close() { pty_.reset(); }

    /// Moves bytes both ways until the condition holds; false when it never does.
    bool run_until(const std::function<bool()>& done) {
        const auto end = std::chrono::steady_clock::now() + deadline;
        while (!done()) {
            if (std::chrono::steady_clock::now() > end) {
                return false;
            }
            step();
        }
        return true;
    }
    bool run_until_output(const std::string& text) {
        return run_until([&] { return output_.find(text) != std::string::npos; });
    }
    /// All output of a program that ends by itself.
    std::string output_until_end() {
        EXPECT_TRUE(run_until([this] { return hung_up_ && pty_->exit_status(); })) << output_;
        return output_;
    }
    [[nodiscard]] const std::string& output() const { return output_; }

  private:
    void step() {
        const auto events = static_cast<short>(pty_->pending() > 0 ? POLLIN | POLLOUT : POLLIN);
        pollfd waiting{pty_->descriptor(), events, 0};
        poll(&waiting, 1, hung_up_ ? 10 : 1000);
        pty_->flush();
        std::array<char, 4096> buffer{};
        const auto result = pty_->read(buffer);
        output_.append(buffer.data(), result.size);
        hung_up_ = result.state == Pty::ReadState::hung_up;
    }

    std::unique_ptr<Pty> pty_;
    std::string output_;
    bool hung_up_ = false;
};

TEST(Pty, ProgramHasArgumentsEnvironmentAndDirectoryAsGiven) {
    Running environment(Program{"/usr/bin/env", {"env"}, {"A=1", "B=two words"}, "/"});
    EXPECT_EQ(environment.output_until_end(), "A=1\r\nB=two words\r\n");

    Running shell(Program{"/bin/bash", {"bash", "-c", "echo $0 $1; pwd", "-x", "y z"}, {}, "/usr/bin"});
    EXPECT_EQ(shell.output_until_end(), "-x y z\r\n/usr/bin\r\n");
}

TEST(Pty, LoginNameMakesALoginShell) {
    Running shell(Program{"/bin/bash", {"-bash"}, {"HOME=/nonexistent", "PS1=$ "}, "/"});
    shell->write("shopt -q login_shell && echo lo''gin; exit\n");
    EXPECT_NE(shell.output_until_end().find("\nlogin\r"), std::string::npos) << shell.output();
}

TEST(Pty, ProgramInheritsOnlyTheTerminal) {
    const int ours = open("/dev/null", O_RDONLY);  // without close-on-exec, as a library might
    ASSERT_GE(ours, 3);
    Running list(Program{"/bin/sh", {"sh", "-c", "exec ls /proc/self/fd"}, {"PATH=/usr/bin:/bin"}, "/"});
    // 3 is the directory that ls itself reads.
    EXPECT_EQ(list.output_until_end(), "0  1  2  3\r\n");
    close(ours);
}

TEST(Pty, ProgramHasDefaultSignalsAndAControllingTerminal) {
    signal(SIGPIPE, SIG_IGN);
    Running shell("grep -E 'SigBlk|SigIgn' /proc/self/status; : </dev/tty && tty");
    const std::string output = shell.output_until_end();
    EXPECT_TRUE(output.starts_with("SigBlk:\t0000000000000000\r\nSigIgn:\t0000000000000000\r\n/dev/pts/"))
        << output;
    signal(SIGPIPE, SIG_DFL);
}

TEST(Pty, TerminalStartsInLineModeWithUsualCharacters) {
    Running shell("stty -a");
    const std::string output = shell.output_until_end();
    for (const char* setting : {"intr = ^C;", "erase = ^?;", "kill = ^U;", "eof = ^D;", "susp = ^Z;",
                                " icanon", " iutf8", " onlcr", " echoe"}) {
        EXPECT_NE(output.find(setting), std::string::npos) << setting << "\n" << output;
    }
}

TEST(Pty, WindowSizeIsThereFromTheStartAndChanges) {
    Running shell(Program{"/bin/bash",
                          {"bash", "-c", "trap 'stty size; exit' WINCH; stty size; sleep 60 & wait"},
                          {"PATH=/usr/bin:/bin"},
                          "/"},
                  Size{100, 30});
    ASSERT_TRUE(shell.run_until_output("30 100\r\n")) << shell.output();
    shell->resize({132, 50}, 1320, 1000);
    EXPECT_TRUE(shell.run_until_output("50 132\r\n")) << shell.output();
}

TEST(Pty, ExitStatusIsKnownOnceTheProgramHasEnded) {
    Running shell("read answer; exit 3");
    EXPECT_EQ(shell->exit_status(), std::nullopt);
    shell->write("\n");
    pollfd ended{shell->exit_descriptor(), POLLIN, 0};
    ASSERT_EQ(poll(&ended, 1, 20'000), 1);
    const std::optional<int> status = shell->exit_status();
    ASSERT_TRUE(status);
    EXPECT_EQ(WEXITSTATUS(*status), 3);
    EXPECT_EQ(shell->exit_status(), status) << "asked again";
}

TEST(Pty, ProgramThatCannotBeExecutedSaysSo) {
    Running missing(Program{"/nonexistent/shell", {"shell"}, {}, "/"});
    EXPECT_EQ(missing.output_until_end(), "/nonexistent/shell: No such file or directory\r\n");
    EXPECT_EQ(WEXITSTATUS(*missing->exit_status()), 127);
}

TEST(Pty, LostDirectoryIsToldAndTheProgramRunsAllTheSame) {
    Running shell(Program{"/bin/sh", {"sh", "-c", "pwd"}, {}, "/nonexistent"});
    EXPECT_EQ(shell.output_until_end(), "/nonexistent: No such file or directory\r\n/\r\n");
}

TEST(Pty, MegabyteForASlowReaderArrivesWholeAndInOrder) {
    std::string text;
    for (int line = 0; text.size() < 1'000'000; ++line) {
        text += "line " + std::to_string(line) + "\n";
    }
    // The reader waits until everything has been queued.
    Running reader("stty -echo; echo ready; read go; exec sha1sum -");
    ASSERT_TRUE(reader.run_until_output("ready\r\n"));
    reader->write("go\n");
    for (std::size_t at = 0; at < text.size(); at += 9'999) {
        reader->write(std::string_view(text).substr(at, 9'999));
    }
    EXPECT_GT(reader->pending(), 0U);
    reader->write("\x04");

    Running expected("seq -f 'line %.0f' 0 " +
                     std::to_string(std::count(text.begin(), text.end(), '\n') - 1) + " | sha1sum -");
    const std::string sum = expected.output_until_end();
    EXPECT_EQ(reader.output_until_end(), "ready\r\n" + sum);
    EXPECT_EQ(reader->pending(), 0U);
}

TEST(Pty, LineDisciplineIsSeenFromOutside) {
    Running shell("stty intr ^G kill undef; echo lines; read go; stty -icanon; echo raw; read go");
    ASSERT_TRUE(shell.run_until_output("lines"));
    EXPECT_TRUE(shell->reads_lines());
    const std::string characters = shell->control_characters();
    EXPECT_NE(characters.find('\x07'), std::string::npos);
    EXPECT_EQ(characters.find('\x03'), std::string::npos);
    EXPECT_EQ(characters.find('\x15'), std::string::npos);
    EXPECT_EQ(characters.find('\0'), std::string::npos);
    shell->write("\n");
    ASSERT_TRUE(shell.run_until_output("raw"));
    EXPECT_FALSE(shell->reads_lines());
}

TEST(Pty, ClosingHangsUpAndLeavesNoZombie) {
    Running shell("echo ready; read forever");
    ASSERT_TRUE(shell.run_until_output("ready"));
    const pid_t child = shell->child();
    shell.close();
    const auto end = std::chrono::steady_clock::now() + deadline;
    // A lingering child is reaped when the next pty is opened or closed.
    while (kill(child, 0) == 0 && std::chrono::steady_clock::now() < end) {
        Running(Program{"/bin/true", {"true"}, {}, "/"}).output_until_end();
    }
    EXPECT_EQ(kill(child, 0), -1);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "no child is left over";
}

}  // namespace
}  // namespace terminal
