// SPDX-License-Identifier: MIT
#include "tests/e2e/orvik_test.h"

#include <cerrno>
#include <cstring>

namespace {

struct Case {
    const char* name;
    std::vector<std::string> without;
    std::vector<std::string> options;
    std::string message;  ///< how the one line of output begins
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

const std::vector<Case> cases{
    {"Logname", {"LOGNAME"}, {}, "Can't get login user name: "},
    {"Shell", {"SHELL"}, {}, "Can't get shell name: "},
    {"OrvikHome", {"ORVIK_HOME"}, {}, "Can't get ORVIK_HOME enviroment variable: "},
    {"TheFirstOnly", {"HOME", "LOGNAME", "SHELL", "ORVIK_HOME"}, {}, "Can't read home directory: "},
    {"NoDisplay", {"DISPLAY"}, {}, "Can't open display"},
    {"NotThisDisplay", {}, {"-display", "nowhere:0"}, "Can't open display \"nowhere:0\""},
};

class StartupFailure : public OrvikTest, public testing::WithParamInterface<Case> {
  protected:
    /// Runs the program to its end; its whole output.
    std::string failed_output() {
        const Program failing(setup_);
        EXPECT_EQ(failing.process().wait_for_end(patience), 1);
        return failing.output();
    }
};

TEST_P(StartupFailure, IsToldInOneLine) {
    setup_.without = GetParam().without;
    setup_.options = GetParam().options;
    const std::string output = failed_output();
    EXPECT_EQ(output.substr(0, GetParam().message.size()), GetParam().message);
    EXPECT_EQ(output.find('\n'), output.size() - 1) << output;
    EXPECT_FALSE(std::filesystem::exists(status_path()));
}

INSTANTIATE_TEST_SUITE_P(All, StartupFailure, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(StartupFailure, RemovedDirectory) {
    std::filesystem::create_directory(home_ / "gone");
    setup_.directory = home_ / "gone";
    setup_.options = {"-c", "rmdir ../gone && exec " ORVIK_PROGRAM};
    setup_.program = "/bin/sh";
    EXPECT_EQ(failed_output(), std::string("Can't read current directory: ") + std::strerror(ENOENT) + "\n");
}

// Nobody may be reading the standard error any more.
TEST_F(StartupFailure, HasItsStatusWithAClosedPipe) {
    setup_.without = {"LOGNAME"};
    setup_.options = {"-c", "exec 2> >(exit); wait $!; " ORVIK_PROGRAM};
    setup_.program = "/bin/bash";
    EXPECT_EQ(failed_output(), "");
}

}  // namespace
