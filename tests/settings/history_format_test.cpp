// SPDX-License-Identifier: MIT
#include "settings/history_format.h"

#include <climits>
#include <ctime>
#include <tuple>

#include <gtest/gtest.h>

namespace {

TEST(HistoryFormat, AHugeLineTakesNoLongerThanItsLength) {
    const std::clock_t begin = std::clock();
    const auto commands = parse_history("ORVIK_HISTORY\n" + std::string(50'000'000, 'x'));
    ASSERT_TRUE(commands);
    EXPECT_EQ(commands->size(), 50'000'000U / 1023 + 1);
    EXPECT_LT(std::clock() - begin, 10 * CLOCKS_PER_SEC) << "it took a minute when each piece sought the end";
}

using namespace std::string_literals;
using Rows = std::vector<std::string>;

const std::string header = "$ORVIK_HISTORY\n";

std::string xs(std::size_t count) { return std::string(count, 'x'); }

TEST(HistoryFormat, IsParsed) {
    const struct {
        const char* name;
        std::string contents;
        std::optional<Rows> expected;
    } cases[] = {
        {"header without dollar", "ORVIK_HISTORY\na\n", Rows{"a"}},
        {"header between other text", "# my ORVIK_HISTORY file\na\n", Rows{"a"}},
        {"header with hyphen", "$ORVIK-HISTORY\na\n", std::nullopt},
        {"header on the second line", "\n" + header, std::nullopt},
        {"header behind a nul", "\0ORVIK_HISTORY\n"s, std::nullopt},
        {"header at the end of the buffer", std::string(1010, ' ') + "ORVIK_HISTORY\na\n", Rows{"a"}},
        {"header behind the buffer", std::string(1011, ' ') + "ORVIK_HISTORY\n", std::nullopt},
        {"long header line", "ORVIK_HISTORY" + xs(1010) + "rest\na\n", Rows{"rest", "a"}},
        {"empty file", "", std::nullopt},
        {"header without line feed", "$ORVIK_HISTORY", Rows{}},
        {"no final line feed", header + "a\nb", Rows{"a", "b"}},
        {"other bytes stay", header + "a\r\n\n \xff\t\n", Rows{"a\r", "", " \xff\t"}},
        {"nul ends its line", header + "a\0b\nc\n"s, Rows{"a", "c"}},
        {"1023 bytes are one command", header + xs(1023) + "\na\n", Rows{xs(1023), "a"}},
        {"3000 bytes are three", header + xs(3000), Rows{xs(1023), xs(1023), xs(954)}},
    };
    for (const auto& [name, contents, expected] : cases) {
        EXPECT_EQ(parse_history(contents), expected) << name;
    }
}

TEST(HistoryFormat, ComesBackAsItWasWritten) {
    const Rows rows{"ls", "", "ls", " a\tb ", "\xff\x01", xs(1023), "$ORVIK_HISTORY"};
    EXPECT_EQ(format_history(rows), header + "ls\n\nls\n a\tb \n\xff\x01\n" + xs(1023) + "\n" + header);
    EXPECT_EQ(parse_history(format_history(rows)), rows);
    EXPECT_EQ(format_history({}), header);
}

TEST(HistoryFormat, CommandsAreRecordedByTheirLength) {
    const std::tuple<std::size_t, int, bool> cases[] = {
        {0, 0, false},  {1, 0, true},    {3, 3, false},        {4, 3, true},  {79, 3, true},
        {80, 3, false}, {79, 79, false}, {80, INT_MIN, false}, {0, -1, true}, {79, INT_MAX, false}};
    for (const auto& [length, longer_than, recorded] : cases) {
        std::string letters;
        for (std::size_t i = 0; i < length; ++i) {
            letters += i % 2 == 0 ? "\u00E9" : "\U0001F600";
        }
        for (const std::string& command : {xs(length), letters}) {
            EXPECT_EQ(is_recorded(command, longer_than, Recording::on), recorded)
                << length << '>' << longer_than;
            EXPECT_FALSE(is_recorded(command, longer_than, Recording::off)) << length;
        }
    }
}

}  // namespace
