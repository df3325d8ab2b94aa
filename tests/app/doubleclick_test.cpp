// SPDX-License-Identifier: MIT
#include "app/doubleclick.h"

#include "app/process.h"
#include "toolkit/scrolling_list.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

constexpr ListEvent first{.row = 3, .x = 50, .y = 60, .time = {.tv_sec = 1000, .tv_usec = 900'000}};

struct Case {
    const char* name;
    ListEvent second;
    bool is_double;
};

ListEvent at(int row, int x, int y, long seconds, long microseconds) {
    return {.row = row, .x = x, .y = y, .time = {.tv_sec = seconds, .tv_usec = microseconds}};
}

const std::vector<Case> cases{
    {"SamePlaceAndSecond", at(3, 50, 60, 1000, 999'999), true},
    {"NextSecond", at(3, 50, 60, 1001, 299'999), true},
    {"TimeIsOver", at(3, 50, 60, 1001, 300'000), false},
    {"TwoSecondsLater", at(3, 50, 60, 1002, 0), false},
    {"ClockSetBack", at(3, 50, 60, 999, 0), false},
    {"OtherRow", at(4, 50, 60, 1000, 950'000), false},
    {"LeftAndUpperEdge", at(3, 45, 55, 1000, 950'000), true},
    {"BeyondTheLeftEdge", at(3, 44, 60, 1000, 950'000), false},
    {"BeyondTheUpperEdge", at(3, 50, 54, 1000, 950'000), false},
    {"InsideTheRightAndLowerEdge", at(3, 54, 64, 1000, 950'000), true},
    {"RightEdge", at(3, 55, 60, 1000, 950'000), false},
    {"LowerEdge", at(3, 50, 65, 1000, 950'000), false},
};

std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }

class DoubleClick : public testing::TestWithParam<Case> {
  protected:
    void SetUp() override {
        multiclick_timeout = 400'000;
        drag_threshold = 5;
        (void)doubleclick(at(-1, -100, -100, 0, 0));  // whatever was clicked before
    }
};

TEST_P(DoubleClick, IsTheSecondPressOfTwo) {
    EXPECT_FALSE(doubleclick(first));
    ListEvent key = first;
    key.kind = ListEvent::Kind::select;
    EXPECT_FALSE(doubleclick(key));
    EXPECT_EQ(doubleclick(GetParam().second), GetParam().is_double);
    EXPECT_TRUE(doubleclick(GetParam().second)) << "the second press was not remembered";
}

INSTANTIATE_TEST_SUITE_P(All, DoubleClick, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
