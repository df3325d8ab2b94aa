// SPDX-License-Identifier: MIT
#include "terminal/descriptor.h"
#include "tests/e2e/orvik_test.h"

#include <fcntl.h>
#include <sys/file.h>

namespace {

namespace fs = std::filesystem;

class StatusFile : public OrvikTest {};

TEST_F(StatusFile, DiffersBetweenInstancesAndGoesWithItsOwn) {
    setup_.options = {"-geometry", "735x400+0+0"};  // side by side, where the pointer reaches both
    start();
    setup_.options = {"-geometry", "735x400+0+600"};
    Program second(setup_);
    EXPECT_TRUE(second.main_window());
    EXPECT_EQ(field(open_window("Status Display"), "Status File:"), status_path(0));
    EXPECT_EQ(field(second.open(display(), "Setup", "Status Display", "Status Display"), "Status File:"),
              status_path(1));
    const terminal::Descriptor held(open(status_path(0).c_str(), O_RDWR | O_CLOEXEC));
    EXPECT_NE(flock(held.get(), LOCK_EX | LOCK_NB), 0) << "nobody takes over the file of a running copy";
    EXPECT_EQ(second.stop(), 0);  // with SIGTERM
    EXPECT_TRUE(fs::exists(status_path(0)));
    EXPECT_FALSE(fs::exists(status_path(1)));
}

}  // namespace
