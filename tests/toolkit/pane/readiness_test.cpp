// SPDX-License-Identifier: MIT
#include "toolkit/pane/readiness.h"

#include <ostream>

#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using terminal::TerminalUse;

constexpr pid_t shell = 7;

struct Case {
    const char* name;
    TerminalUse use;
    int since_start;   ///< milliseconds
    int since_output;  ///< -1: nothing was written yet
    bool over;
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

class StartUp : public testing::TestWithParam<Case> {};

TEST_P(StartUp, IsOver) {
    const Case& row = GetParam();
    Readiness::Clock::time_point now{};
    Readiness readiness({.use = [&] { return row.use; }, .now = [&] { return now; }});
    readiness.output_came();  // of an earlier shell
    now += milliseconds(10'000);
    readiness.shell_started(shell);
    const auto start = now;
    if (row.since_output >= 0) {
        now = start + milliseconds(row.since_start - row.since_output);
        readiness.output_came();
    }
    now = start + milliseconds(row.since_start);
    EXPECT_EQ(readiness.start_up_is_over(), row.over);
}

constexpr TerminalUse lines{.group = shell};
constexpr TerminalUse password{.echoes = false, .group = shell};
constexpr TerminalUse editor{.reads_lines = false, .echoes = false, .group = shell};
constexpr TerminalUse other_raw{.reads_lines = false, .echoes = false, .group = 8};

INSTANTIATE_TEST_SUITE_P(All, StartUp,
                         testing::Values(Case{"editor", editor, 0, -1, true},
                                         Case{"no_prompt_yet", lines, 1499, -1, false},
                                         Case{"never_a_prompt", lines, 1500, -1, true},
                                         Case{"still_writing", lines, 500, 99, false},
                                         Case{"prompted_and_quiet", lines, 500, 100, true},
                                         Case{"password", password, 59'999, 5000, false},
                                         Case{"password_for_long", password, 60'000, 5000, true},
                                         Case{"full_screen_program", other_raw, 1499, 1000, false},
                                         Case{"full_screen_program_for_long", other_raw, 1500, 5, true}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
