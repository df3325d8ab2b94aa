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
    void expect_footer(const std::string& expected) {
        EXPECT_EQ(awaited([this] { return right_footer(); }, expected), expected);
    }
    void expect_cwd(const std::string& expected) {
        EXPECT_EQ(awaited([this] { return cwd(); }, expected), expected) << terminal_.text();
    }
};

class StatusOf : public Status, public testing::WithParamInterface<const char*> {};

TEST_P(StatusOf, FollowsTheShell) {
    fs::create_directory(home_ / "with two blanks");
    start_with_shell(GetParam());
    type("cd /usr\n");
    expect_cwd("/usr");
    expect_footer(full_footer());
    type("cd '" + (home_ / "with two blanks").string() + "'\n");
    expect_cwd(home_ / "with two blanks");
    EXPECT_EQ(field(open_window("Default Settings"), "Prompt:"), "ready>");
}

// The line of such a directory counts as a prompt's too, and the last one of the file holds.
TEST_P(StatusOf, DirectoryThatLooksLikeAPrompt) {
    fs::create_directory(home_ / "P:x");
    start_with_shell(GetParam());
    type("cd /usr\n");
    expect_cwd("/usr");
    type("cd '" + (home_ / "P:x").string() + "'\n");
    expect_cwd("");
    EXPECT_EQ(field(open_window("Default Settings"), "Prompt:"), (home_ / "P:x").string());
}

INSTANTIATE_TEST_SUITE_P(Shells, StatusOf, testing::Values("/bin/bash", "/bin/tcsh"),
                         [](const auto& row) { return fs::path(row.param).stem().string(); });

class StatusWithoutHook : public Status, public testing::WithParamInterface<const char*> {};

// ksh takes the hook for a plain variable, zsh is given none: the refresh then shows empty values.
TEST_P(StatusWithoutHook, StaysEmpty) {
    start_with_shell(GetParam());
    type("cd /usr\n");
    expect_footer("Host:    User:    PID: " + own_pid() + "   ");
    EXPECT_EQ(cwd(), "");
}

INSTANTIATE_TEST_SUITE_P(Shells, StatusWithoutHook, testing::Values("/bin/ksh93", "/bin/zsh"),
                         [](const auto& row) { return fs::path(row.param).stem().string(); });

TEST_F(Status, FooterShowsWhatIsEnabled) {
    start_with_shell("/bin/bash");
    expect_footer(full_footer());
    const Accessible window = open_window("Status Display");
    const Accessible boxes = window.find({"panel", "Enable"});
    const auto toggle = [&](std::string_view name) { EXPECT_TRUE(boxes.find({"check box", name}).press()); };
    EXPECT_FALSE(boxes.find({"check box", "Clear Case View"}).checked());
    toggle("Clear Case View");
    expect_footer(full_footer() + "View: Not_used   ");
    toggle("Host Name");
    expect_footer("User: tester   PID: " + own_pid() + "   View: Not_used   ");
    toggle("Process ID");
    expect_footer("User: tester   View: Not_used   ");
    toggle("User Name");
    expect_footer("View: Not_used   ");
    toggle("Clear Case View");
    expect_footer("");
    toggle("Host Name");
    expect_footer("Host: " + host_name() + "   ");
}

TEST_F(Status, FollowsAShellThatWasStartedAgain) {
    start_with_shell("/bin/bash");
    type("exit\n");
    ASSERT_TRUE(wait_until([this] { return terminal_shows("press Return to start a new one]"); }));
    type("\n");
    expect_cwd(home_.path());
    type("cd /usr\n");
    expect_cwd("/usr");
}

TEST_F(Status, OffMeansNoRefresh) {
    start_with_shell("/bin/bash");
    type("cd /usr\n");
    expect_cwd("/usr");
    const Accessible choice = open_window("Status Display").find({"panel", "Display"});
    ASSERT_TRUE(choice.find({"radio button", "Off"}).press());
    type("cd /tmp\n");
    ASSERT_TRUE(
        wait_until([this] { return read_file(status_path()).find("C:/tmp\n") != std::string::npos; }));
    // Longer than any refresh is put off.
    EXPECT_FALSE(wait_until([this] { return cwd() != "/usr"; }, std::chrono::milliseconds{1200}));
    ASSERT_TRUE(choice.find({"radio button", "On"}).press());
    type("\n");
    expect_cwd("/tmp");
}

}  // namespace
