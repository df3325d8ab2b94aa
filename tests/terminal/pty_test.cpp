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

TEST(Pty, ProgramHasWhatItIsGivenAndNoMore) {
    struct Case {
        const char* name;
        Program program;
        const char* output;
        int status = 0;
    };
    const Case cases[] = {
        {"environment", {"/usr/bin/env", {"env"}, {"A=1", "B=two words"}, "/"}, "A=1\r\nB=two words\r\n"},
        {"arguments, directory and size",
         {"/bin/bash",
          {"bash", "-c", "echo $0 $1; pwd; stty size", "-x", "y z"},
          {"PATH=/usr/bin"},
          "/usr/bin"},
         "-x y z\r\n/usr/bin\r\n30 100\r\n"},
        {"no descriptor of ours; 3 is the directory that ls itself reads",
         {"/bin/ls", {"ls", "/proc/self/fd"}, {}, "/"},
         "0  1  2  3\r\n"},
        {"lost directory",
         {"/bin/sh", {"sh", "-c", "pwd"}, {}, "/nonexistent"},
         "/nonexistent: No such file or directory\r\n/\r\n"},
        {"no such program",
         {"/nonexistent/shell", {"shell"}, {}, "/"},
         "/nonexistent/shell: No such file or directory\r\n",
         127},
    };
    const int ours = open("/dev/null", O_RDONLY);  // without close-on-exec, as a library might
    ASSERT_GE(ours, 3);
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        Running program(row.program, Size{100, 30});
        EXPECT_EQ(program.output_until_end(), row.output);
        EXPECT_EQ(WEXITSTATUS(*program->exit_status()), row.status);
    }
    close(ours);
}

TEST(Pty, ProgramHasDefaultSignalsAndAUsualControllingTerminal) {
    signal(SIGPIPE, SIG_IGN);
    Running shell("grep -E 'SigBlk|SigIgn' /proc/self/status; : </dev/tty && tty; stty -a");
    const std::string output = shell.output_until_end();
    EXPECT_TRUE(output.starts_with("SigBlk:\t0000000000000000\r\nSigIgn:\t0000000000000000\r\n/dev/pts/"))
        << output;
    for (const char* setting : {"intr = ^C;", "erase = ^?;", "kill = ^U;", "eof = ^D;", "susp = ^Z;",
                                " icanon", " iutf8", " onlcr", " echoe"}) {
        EXPECT_NE(output.find(setting), std::string::npos) << setting << "\n" << output;
    }
    signal(SIGPIPE, SIG_DFL);
}

TEST(Pty, LineDisciplineIsSeenFromOutside) {
    Running shell("stty intr ^G kill undef; echo lines; read go; stty raw; echo raw; read go");
    ASSERT_TRUE(shell.run_until_output("lines"));
    EXPECT_EQ(shell->use(), (TerminalUse{.group = shell->child()}));
    const std::string characters = shell->control_characters();
    EXPECT_NE(characters.find('\a'), std::string::npos);
    EXPECT_EQ(characters.find_first_of(std::string_view("\x03\x15\0", 3)), std::string::npos);
    shell->write("\n");
    ASSERT_TRUE(shell.run_until_output("raw"));
    const TerminalUse raw = shell->use();
    EXPECT_FALSE(raw.reads_lines || raw.translates_return);
    EXPECT_TRUE(raw.echoes);
}

TEST(Pty, ClosingHangsUpAndLeavesNoZombie) {
    Running shell("echo ready; read forever");
    ASSERT_TRUE(shell.run_until_output("ready"));
    const pid_t child = shell->child();
    shell.close();
    const auto has_children = [] {
        siginfo_t info{};
        return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
    };
    const auto end = std::chrono::steady_clock::now() + deadline;
    // A lingering child is reaped when the next pty is opened or closed.
    while (has_children() && std::chrono::steady_clock::now() < end) {
        Running(Program{"/bin/true", {"true"}, {}, "/"}).output_until_end();
    }
    EXPECT_FALSE(has_children());
    EXPECT_EQ(kill(child, 0), -1);
}

}  // namespace
}  // namespace terminal
