// SPDX-License-Identifier: MIT
#include "settings/history_format.h"

#include "app/files.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/wait_until.h"

#include <array>
#include <climits>
#include <csignal>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace std::string_literals;
using Rows = std::vector<std::string>;

const std::string header = "$ORVIK_HISTORY\n";

std::string xs(std::size_t count) { return std::string(count, 'x'); }

struct ParseCase {
    const char* name;
    std::string contents;
    std::optional<Rows> expected;
};

std::ostream& operator<<(std::ostream& out, const ParseCase& row) { return out << row.name; }

const std::vector<ParseCase> parse_cases{
    {"HeaderWithoutDollar", "ORVIK_HISTORY\na\n", Rows{"a"}},
    {"HeaderBetweenOtherText", "# my ORVIK_HISTORY file\na\n", Rows{"a"}},
    {"HeaderWithHyphen", "$ORVIK-HISTORY\na\n", std::nullopt},
    {"HeaderOnTheSecondLine", "\n" + header, std::nullopt},
    {"HeaderBehindANul", "\0ORVIK_HISTORY\n"s, std::nullopt},
    {"HeaderAtTheEndOfTheBuffer", std::string(1010, ' ') + "ORVIK_HISTORY\na\n", Rows{"a"}},
    {"HeaderBehindTheBuffer", std::string(1011, ' ') + "ORVIK_HISTORY\n", std::nullopt},
    {"LongHeaderLine", "ORVIK_HISTORY" + xs(1010) + "rest\na\n", Rows{"rest", "a"}},
    {"EmptyFile", "", std::nullopt},
    {"HeaderOnly", header, Rows{}},
    {"HeaderWithoutLineFeed", "$ORVIK_HISTORY", Rows{}},
    {"NoFinalLineFeed", header + "a\nb", Rows{"a", "b"}},
    {"OtherBytesStay", header + "a\r\n\n \xff\t\n", Rows{"a\r", "", " \xff\t"}},
    {"NulEndsItsLine", header + "a\0b\nc\n"s, Rows{"a", "c"}},
    {"1023BytesAreOneCommand", header + xs(1023) + "\na\n", Rows{xs(1023), "a"}},
    {"1024BytesAreTwo", header + xs(1024) + "\na\n", Rows{xs(1023), "x", "a"}},
    {"3000BytesAreThree", header + xs(3000), Rows{xs(1023), xs(1023), xs(954)}},
};

class HistoryFormat : public testing::TestWithParam<ParseCase> {};

TEST_P(HistoryFormat, IsParsed) { EXPECT_EQ(parse_history(GetParam().contents), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(All, HistoryFormat, testing::ValuesIn(parse_cases),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HistoryFormat, ComesBackAsItWasWritten) {
    const Rows rows{"ls", "", "ls", " a\tb ", "\xff\x01", xs(1023), "$ORVIK_HISTORY"};
    EXPECT_EQ(format_history(rows), header + "ls\n\nls\n a\tb \n\xff\x01\n" + xs(1023) + "\n" + header);
    EXPECT_EQ(parse_history(format_history(rows)), rows);
    EXPECT_EQ(format_history({}), header);
}

TEST(HistoryFormat, CommandsAreRecordedByTheirLength) {
    struct Case {
        std::size_t length;
        int longer_than;
        bool recorded;
    };
    for (const auto& [length, longer_than, recorded] : std::vector<Case>{{0, 0, false},
                                                                         {1, 0, true},
                                                                         {3, 3, false},
                                                                         {4, 3, true},
                                                                         {79, 3, true},
                                                                         {80, 3, false},
                                                                         {79, 79, false},
                                                                         {80, INT_MIN, false},
                                                                         {0, -1, true},
                                                                         {79, INT_MAX, false}}) {
        EXPECT_EQ(is_recorded(length, longer_than, Recording::on), recorded) << length << '>' << longer_than;
        EXPECT_FALSE(is_recorded(length, longer_than, Recording::off)) << length;
    }
}

TEST(HistoryFormat, OnlyAListWithinBoundsIsSorted) {
    const std::vector<std::pair<std::size_t, std::string_view>> cases{
        {0, "Nothing to sort"},
        {1, "Nothing to sort"},
        {2, ""},
        {8195, ""},
        {8196, "Too many commands to sort"},
    };
    for (const auto& [commands, refusal] : cases) {
        EXPECT_EQ(sort_refusal(commands), refusal) << commands;
    }
}

TEST(HistoryFormat, CommandsAreFoundFromARowOn) {
    const Rows rows{"make", "ls -l", "Make", "make all"};
    const std::vector<std::tuple<std::string, int, std::optional<int>>> cases{
        {"make", 0, 0}, {"make", 1, 3}, {"ke a", 0, 3}, {"Make", 0, 2}, {"make", 4, {}}, {"rm", 0, {}},
    };
    for (const auto& [text, first, row] : cases) {
        EXPECT_EQ(find_command_row(rows, text, first), row) << text << first;
    }
}

/// Saves two contents in turn until it is killed.
[[noreturn]] void save_without_end(const std::string& path, const std::array<std::string, 2>& contents) {
    for (std::size_t turn = 0;; ++turn) {
        (void)replace_file(path, contents[turn % contents.size()],
                           {.exact_mode = 0600, .durability = Durability::renamed});
    }
}

TEST(HistoryFile, IsWholeWheneverItsWriterIsKilled) {
    const ScratchDirectory home;
    const std::array contents{format_history(Rows(5000, "first " + xs(40))),
                              format_history(Rows(8000, "second " + xs(60)))};
    const std::string path = home.write("history", contents[0]);
    const auto inode = [&] {
        struct stat info {};
        return stat(path.c_str(), &info) == 0 ? info.st_ino : 0;
    };
    for (int kill_number = 0; kill_number < 100; ++kill_number) {
        const auto before = inode();
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            save_without_end(path, contents);
        }
        const bool saving = wait_until([&] { return inode() != before; });
        std::this_thread::sleep_for(
            std::chrono::microseconds{37 * kill_number});  // to kill at varying moments
        ASSERT_EQ(kill(child, SIGKILL), 0);
        ASSERT_EQ(waitpid(child, nullptr, 0), child);
        ASSERT_TRUE(saving);
        const std::string found = read_file(path);
        ASSERT_TRUE(found == contents[0] || found == contents[1]) << found.size() << " bytes";
    }
}

}  // namespace
