// SPDX-License-Identifier: MIT
#include "shell/doubleclick.h"

#include "shell/process.h"
#include "toolkit/scrolling_list.h"

#include <gtest/gtest.h>

namespace {

ListEvent at(int row, int x, int y, long seconds, long microseconds) {
    return {.row = row, .x = x, .y = y, .time = {.tv_sec = seconds, .tv_usec = microseconds}};
}

TEST(DoubleClick, IsTheSecondPressOfTwo) {
    const ListEvent first = at(3, 50, 60, 1000, 900'000);
    const struct {
        const char* name;
        ListEvent second;
        bool is_double;
    } cases[] = {
        {"same place and second", at(3, 50, 60, 1000, 999'999), true},
        {"next second", at(3, 50, 60, 1001, 299'999), true},
        {"time is over", at(3, 50, 60, 1001, 300'000), false},
        {"clock set back", at(3, 50, 60, 999, 0), false},
        {"other row", at(4, 50, 60, 1000, 950'000), false},
        {"left and upper edge", at(3, 45, 55, 1000, 950'000), true},
        {"beyond the left edge", at(3, 44, 60, 1000, 950'000), false},
        {"beyond the upper edge", at(3, 50, 54, 1000, 950'000), false},
        {"inside the right and lower edge", at(3, 54, 64, 1000, 950'000), true},
        {"right edge", at(3, 55, 60, 1000, 950'000), false},
        {"lower edge", at(3, 50, 65, 1000, 950'000), false},
    };
    multiclick_timeout = 400'000;
    drag_threshold = 5;
    ListEvent key = first;
    key.kind = ListEvent::Kind::select;
    for (const auto& [name, second, is_double] : cases) {
        (void)doubleclick(at(-1, -100, -100, 0, 0));  // whatever was clicked before
        EXPECT_FALSE(doubleclick(first)) << name;
        EXPECT_FALSE(doubleclick(key)) << name;
        EXPECT_EQ(doubleclick(second), is_double) << name;
        EXPECT_TRUE(doubleclick(second)) << name << ": the second press was not remembered";
    }
}

}  // namespace
