// SPDX-License-Identifier: MIT
#include "shell/door.h"

#include "tests/support/recorded_windows.h"

#include <csignal>

namespace {

class Door : public RecordedWindows {
  protected:
    void SetUp() override {
        RecordedWindows::SetUp();
        ASSERT_TRUE(wait([] { return main_window().termpane.use().started; }));
        waiting_lines().set_hold(true);
    }
};

TEST_F(Door, GivesALineInTheSameTurnOfTheEventLoop) {
    EXPECT_EQ(type_line("ls"), "");
    EXPECT_TRUE(wait_until([this] { return read_file(home / "typed") == "ls\n"; })) << "no event was handled";
}

TEST_F(Door, TakesNothingForAShellThatHasEnded) {
    EXPECT_EQ(kill(main_window().termpane.child(), SIGKILL), 0);
    ASSERT_TRUE(wait([] { return main_window().termpane.has_ended(); }));
    const Message ended = "The shell has ended. Return in the terminal starts a new one.";
    EXPECT_EQ(type_line("ls"), ended);
    EXPECT_EQ(type_text("ls"), ended);
    EXPECT_TRUE(waiting_lines().lines().empty());
}

}  // namespace
