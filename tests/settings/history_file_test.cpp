// SPDX-License-Identifier: MIT
// What several copies of the tool do to one history file.
#include "settings/history_file.h"

#include "settings/history_format.h"
#include "tests/support/other_process.h"
#include "tests/support/scratch_directory.h"

#include <algorithm>

#include <sys/file.h>
#include <unistd.h>

namespace {

using Rows = std::vector<std::string>;

TEST(HistoryFile, NewsAreRowsAddedAndRowsOfWhichNoneIsLeft) {
    const struct {
        Rows before, now, mine;
        HistoryNews news;
        Rows kept;
    } cases[] = {
        {{"a", "b"}, {"a", "b"}, {"a", "b"}, {}, {"a", "b"}},
        {{"a"}, {"a", "b", "a", "b"}, {"a", "x"}, {{"b", "a", "b"}, {}}, {"a", "x"}},
        {{"a", "b", "a"}, {"c", "b"}, {"b", "a", "x", "a"}, {{"c"}, {"a", "a"}}, {"b", "x"}},
        {{"a", "a"}, {"a"}, {"a"}, {}, {"a"}},              // another copy refuses duplicates
        {{"a"}, {"b"}, {"a", "a"}, {{"b"}, {"a"}}, {"a"}},  // filed again since
        {{}, {"b", "a"}, {"z"}, {{"b", "a"}, {}}, {"z"}},
    };
    for (const auto& [before, now, mine, news, kept] : cases) {
        SCOPED_TRACE(&before - &cases->before);
        EXPECT_EQ(history_news(before, now), news);
        EXPECT_EQ(without(mine, news.gone), kept);
    }
}

/// What a copy does with each of its commands.
void file_command(HistoryFile& file, const std::string& path, Rows& rows, std::string command) {
    const HistoryTurn turn(path);
    const std::optional<HistoryNews> news = file.news();
    ASSERT_TRUE(news);
    rows.insert(rows.end(), news->added.begin(), news->added.end());
    rows.push_back(std::move(command));
    ASSERT_EQ(file.write(rows, Durability::renamed), 0);
}

TEST(HistoryFile, TwoCopiesThatFileAtOnceLoseNothing) {
    constexpr int each = 1000;
    const ScratchDirectory home;
    const std::string path = home / ".orvik-history";
    const auto copy = [&](const char* name) {
        HistoryFile file(path);
        Rows rows;
        for (int number = 0; number < each && !testing::Test::HasFailure(); ++number) {
            file_command(file, path, rows, name + std::to_string(number));
        }
        return 0;
    };
    const int failures = in_child([&] {
        const pid_t other = fork();
        if (other == 0) {
            _exit(copy("there ") + (testing::Test::HasFailure() ? 1 : 0));
        }
        (void)copy("here ");
        int status = -1;
        EXPECT_EQ(waitpid(other, &status, 0), other);
        return status;
    });
    EXPECT_EQ(failures, 0);
    Rows filed = parse_history(read_file(path)).value_or(Rows());
    Rows expected;
    for (int number = 0; number < each; ++number) {
        expected.push_back("here " + std::to_string(number));
        expected.push_back("there " + std::to_string(number));
    }
    std::ranges::sort(filed);
    std::ranges::sort(expected);
    EXPECT_EQ(filed, expected);
}

TEST(HistoryFile, ATurnThatAnotherKeepsIsRefusedAndOneThatCannotBeMadeIsNot) {
    const ScratchDirectory home;
    const std::string path = home / "history";
    const terminal::Descriptor held(open((path + ".lock").c_str(), O_RDWR | O_CREAT, 0600));
    EXPECT_FALSE(HistoryTurn(path).is_refused());
    ASSERT_EQ(flock(held.get(), LOCK_EX), 0);
    EXPECT_TRUE(HistoryTurn(path).is_refused());
    EXPECT_FALSE(HistoryTurn(home / "missing/history").is_refused());
}

}  // namespace
