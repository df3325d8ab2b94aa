// SPDX-License-Identifier: MIT
// What the main window tells about a real shell.
#include "tests/e2e/orvik_test.h"

#include <array>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

std::string host_name() {
    std::array<char, 80> name{};
    gethostname(name.data(), name.size() - 1);
    return name.data();
}

class Status : public OrvikTest {
  protected:
    [[nodiscard]] std::string full_footer() const {
        return "Host: " + host_name() + "   User: tester   PID: " + own_pid() + "   ";
    }
    void expect_footer(const std::string& expected) const {
        expect_awaited([this] { return right_footer(); }, expected);
    }
};

class StatusOf : public Status, public testing::WithParamInterface<const char*> {};

TEST_P(StatusOf, FollowsTheShell) {
    fs::create_directory(home_ / "with two blanks");
    fs::create_directory(home_ / "P:x");
    start_with_shell(GetParam());
    const Accessible settings = open_window("Default Settings");
    type("cd '" + (home_ / "with two blanks").string() + "'\n");
    expect_cwd(home_ / "with two blanks");
    expect_footer(full_footer());
    EXPECT_EQ(field(settings, "Prompt:"), "ready>");
    type("sleep 2; cd /usr\n");  // the timer is over by then
    expect_cwd("/usr");
    // The line of such a directory counts as a prompt's too, and the last one of the file holds.
    type("cd '" + (home_ / "P:x").string() + "'\n");
    expect_cwd("");
    EXPECT_EQ(field(settings, "Prompt:"), (home_ / "P:x").string());
}

INSTANTIATE_TEST_SUITE_P(Shells, StatusOf, testing::Values("/bin/bash", "/bin/tcsh"),
                         [](const auto& row) { return fs::path(row.param).stem().string(); });

class StatusOfAddedHook : public Status,
                          public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(StatusOfAddedHook, KeepsTheUsersOwn) {
    const auto& [shell, own] = GetParam();
    setup_.options = {"-xrm", "Orvik.PromptHook: add"};
    start_with_shell(shell);
    type(std::string(own) + "\n");
    EXPECT_TRUE(main_.find({"push button", "set alias"}).press());
    type("cd /usr\n");
    expect_cwd("/usr");
    expect_in_terminal("own one");
    type("set own=two; own=two\n");
    expect_in_terminal("own two");
    type("cd /tmp\n");
    expect_cwd("/tmp");
}

INSTANTIATE_TEST_SUITE_P(Shells, StatusOfAddedHook,
                         testing::Values(std::pair("/bin/bash", "own=one; PROMPT_COMMAND='echo own $own;'"),
                                         std::pair("/bin/tcsh", "set own=one; alias precmd 'echo own $own'"),
                                         std::pair("/bin/zsh", "own=one; precmd() { echo own $own }")),
                         [](const auto& row) { return fs::path(row.param.first).stem().string(); });

TEST_F(Status, AHookThatMayNotWriteIsToldOf) {
    start_with_shell("/bin/bash");
    expect_cwd(home_.path());
    type("set -o noclobber\n");
    EXPECT_TRUE(main_.find({"push button", "set alias"}).press());
    const Accessible board = open_window("Message Board");
    expect_awaited(
        [&] { return field(board, "Message Board text").find("Orvik.PromptHook") != std::string::npos; },
        true);
}

class StatusWithoutHook : public Status, public testing::WithParamInterface<const char*> {};

// ksh takes the hook for a plain variable, zsh is given none: the refresh then shows empty values.
TEST_P(StatusWithoutHook, StaysEmpty) {
    start_with_shell(GetParam());
    type("cd /usr\n");
    expect_footer("Host:    User:    PID: " + own_pid() + "   ");
    EXPECT_EQ(cwd(), "");
}

TEST_P(StatusWithoutHook, FollowsWhatTheKernelKnows) {
    setup_.options = {"-xrm", "Orvik.FollowShell: on"};
    start_with_shell(GetParam());
    type("sleep 2; cd /usr\n");
    expect_cwd("/usr");
}

INSTANTIATE_TEST_SUITE_P(Shells, StatusWithoutHook, testing::Values("/bin/ksh93", "/bin/zsh"),
                         [](const auto& row) { return fs::path(row.param).stem().string(); });

TEST_F(Status, FooterShowsWhatIsEnabled) {
    start_with_shell("/bin/bash");
    expect_footer(full_footer());
    const Accessible boxes = open_window("Status Display").find({"panel", "Enable"});
    EXPECT_FALSE(boxes.find({"check box", "Clear Case View"}).checked());
    const std::pair<const char*, std::string> steps[] = {
        {"Clear Case View", full_footer() + "View: Not_used   "},
        {"Host Name", "User: tester   PID: " + own_pid() + "   View: Not_used   "},
        {"Process ID", "User: tester   View: Not_used   "},
        {"User Name", "View: Not_used   "},
        {"Clear Case View", ""},
    };
    for (const auto& [toggled, expected] : steps) {
        EXPECT_TRUE(boxes.find({"check box", toggled}).press());
        expect_footer(expected);
    }
}

TEST_F(Status, FollowsAShellThatWasStartedAgain) {
    start_with_shell("/bin/bash");
    type("exit\n");
    expect_in_terminal("press Return to start a new one]");
    type("\n");
    expect_cwd(home_.path());
    type("cd /usr\n");
    expect_cwd("/usr");
}

}  // namespace
