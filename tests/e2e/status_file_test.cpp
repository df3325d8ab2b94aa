// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

namespace {

namespace fs = std::filesystem;

class StatusFile : public OrvikTest {
  protected:
    [[nodiscard]] std::string shown() const { return field(open_window("Status Display"), "Status File:"); }
};

TEST_F(StatusFile, IsMadeForItsOwnerOnly) {
    start_with_recording_shell("zsh");
    EXPECT_EQ(shown(), status_path());
    EXPECT_EQ(fs::status(status_path()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::file_size(status_path()), 0U);
}

TEST_F(StatusFile, TakesTheSmallestFreeNumber) {
    home_.write(".orvik-status0", "P:of another\n");
    home_.write(".orvik-status2", "");
    start_with_recording_shell("zsh");
    EXPECT_EQ(shown(), status_path(1));
    EXPECT_EQ(read_file(status_path(0)), "P:of another\n");
}

TEST_F(StatusFile, FollowsNoLink) {
    fs::create_symlink(home_ / "elsewhere", status_path());
    start_with_recording_shell("zsh");
    EXPECT_EQ(shown(), status_path(1));
    EXPECT_FALSE(fs::exists(home_ / "elsewhere"));
    EXPECT_TRUE(fs::is_symlink(status_path()));
}

TEST_F(StatusFile, DiffersBetweenInstances) {
    setup_.options = {"-geometry", "735x400+0+0"};  // side by side, where the pointer reaches both
    start();
    setup_.options = {"-geometry", "735x400+0+600"};
    Program second(setup_);
    EXPECT_TRUE(second.main_window());
    EXPECT_EQ(shown(), status_path(0));
    EXPECT_EQ(field(second.open(display(), "Setup", "Status Display", "Status Display"), "Status File:"),
              status_path(1));
    EXPECT_EQ(second.stop(), 0);
    EXPECT_TRUE(fs::exists(status_path(0)));
    EXPECT_FALSE(fs::exists(status_path(1)));
}

TEST_F(StatusFile, IsNoneWhenAllNumbersAreTaken) {
    constexpr int numbers = 200;
    for (int number = 0; number < numbers; ++number) {
        home_.write(".orvik-status" + std::to_string(number), "stale");
    }
    start_with_recording_shell("zsh");
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(fs::exists(status_path(numbers)));
}

TEST_F(StatusFile, GoesWithTheClosedWindow) {
    start();
    ASSERT_TRUE(fs::exists(status_path()));
    display().close(x_window());
    const Accessible program = program_->application();
    ASSERT_TRUE(wait_until([&] { return program.find({"push button", "Yes"}).showing(); }));
    EXPECT_TRUE(program.find({"push button", "Yes"}).press());
    EXPECT_EQ(program_->process().wait_for_end(patience), 0);
    EXPECT_FALSE(fs::exists(status_path()));
}

TEST_F(StatusFile, GoesWithSigterm) {
    start();
    ASSERT_TRUE(fs::exists(status_path()));
    EXPECT_EQ(program_->stop(), 0);
    EXPECT_FALSE(fs::exists(status_path()));
}

}  // namespace
