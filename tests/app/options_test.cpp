// SPDX-License-Identifier: MIT
#include "app/options.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    std::vector<std::string> arguments;
    int result;
    CommandLineOptions expected;
};

class CommandLine : public testing::TestWithParam<Case> {};

TEST_P(CommandLine, IsReadAsStated) {
    std::vector<std::string> arguments{"orvik"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    CommandLineOptions options{.closed = true, .workdir = "left over"};
    EXPECT_EQ(process_commandline(arguments, options), GetParam().result);
    const CommandLineOptions& expected = GetParam().expected;
    EXPECT_EQ(options.work, expected.work);
    EXPECT_EQ(options.closed, expected.closed);
    EXPECT_EQ(options.ilabel, expected.ilabel);
    EXPECT_EQ(options.host, expected.host);
    EXPECT_EQ(options.workdir, expected.workdir);
    EXPECT_EQ(options.label, expected.label);
    EXPECT_EQ(options.hostname, expected.hostname);
}

INSTANTIATE_TEST_SUITE_P(
    All, CommandLine,
    testing::Values(
        Case{"Nothing", {}, 0, {}}, Case{"Closed", {"-closed"}, 0, {.closed = true}},
        Case{"LastOfClosedAndOpenedHolds", {"-closed", "-opened"}, 0, {}},
        Case{"EachWithItsValue",
             {"-work", "/tmp/a b", "-ilabel", "mine", "-host", "h"},
             0,
             {.work = true,
              .ilabel = true,
              .host = true,
              .workdir = "/tmp/a b",
              .label = "mine",
              .hostname = "h"}},
        Case{"ShortLabel", {"-l", "x"}, 0, {.ilabel = true, .label = "x"}},
        Case{"LastWithoutValue", {"-l"}, 0, {.ilabel = true}},
        Case{"ValueLikeAnOptionIsAnError", {"-work", "-host", "x"}, 1, {.work = true}},
        Case{"NothingIsReadBehindAnError", {"-host", "-x", "-closed"}, 1, {.host = true}},
        Case{"UnknownSkipped", {"-wor", "-worked", "x", "-closed"}, 0, {.closed = true}},
        Case{"ValueIsNotAnOption",
             {"-work", "closed", "-host", ""},
             0,
             {.work = true, .host = true, .workdir = "closed"}},
        Case{"LaterValueReplaces", {"-work", "a", "-work", "b"}, 0, {.work = true, .workdir = "b"}}),
    [](const auto& test) { return test.param.name; });

}  // namespace
