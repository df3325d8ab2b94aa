// SPDX-License-Identifier: MIT
#include "browsers/file_facts.h"

#include "tests/support/scratch_directory.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <tuple>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

TEST(FileFacts, BoxesAreAMode) {
    const std::pair<mode_t, PermissionBoxes> cases[] = {
        {0754, {.owner = 7, .group = 5, .world = 1}},
        {0640, {.owner = 3, .group = 1, .world = 0}},
        {0312, {.owner = 6, .group = 4, .world = 2}},
    };
    for (const auto& [mode, boxes] : cases) {
        EXPECT_EQ(boxes_of(S_IFREG | S_ISUID | mode), boxes) << std::oct << mode;
        EXPECT_EQ(mode_of(boxes), mode) << std::oct << mode;
    }
}

TEST(FileFacts, TellWhatAPathLeadsTo) {
    const ScratchDirectory directory;
    directory.write("file", "four");
    directory.write("huge", "");
    ASSERT_EQ(truncate((directory / "huge").c_str(), off_t{3} << 30U), 0);
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    fs::create_symlink("file", directory / "link");
    fs::create_symlink("nowhere", directory / "dangling");
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {directory / "file", "File type         : Regular", "File size         : 4"},
        {directory / "link", "File type         : Regular", "File size         : 4"},
        {directory / "huge", "File type         : Regular", "File size         : -1073741824"},
        {directory / "fifo", "File type         : FIFO", "File size         : 0"},
        {"/dev/null", "File type         : Character special", "File size         : 0"},
        {directory / "dangling", "", ""},
        {directory / "none", "", ""},
        {"", "", ""},
    };
    for (const auto& [path, type, size] : cases) {
        const FileFacts facts = examine_file(path);
        EXPECT_EQ(facts.known, !type.empty()) << path;
        EXPECT_EQ(std::pair(facts.type, facts.size), std::pair(type, size)) << path;
    }
    EXPECT_EQ(examine_file(directory.path()).type, "File type         : Directory");
}

TEST(FileFacts, NameOwnerGroupAndTimes) {
    const ScratchDirectory directory;
    const std::string path = directory.write("file", "");
    const timespec times[] = {{.tv_sec = 86400, .tv_nsec = 0}, {.tv_sec = 3661, .tv_nsec = 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
    setenv("TZ", "UTC", 1);
    tzset();
    EXPECT_EQ(examine_file(path).accessed, "Last accessed  : 1970-01-02  00:00:00");
    EXPECT_EQ(examine_file(path).modified, "Last modified  : 1970-01-01  01:01:01");
    EXPECT_EQ(examine_file(path).changed.substr(0, 19), "Status changed : 20");
    EXPECT_EQ(examine_file("/").owner, "File owner      : root (root)");
    EXPECT_EQ(examine_file("/").group, "File group      : root");
    constexpr uid_t nobody_knows = 54321;
    if (chown(path.c_str(), nobody_knows, nobody_knows) == 0) {  // only root may
        EXPECT_EQ(examine_file(path).owner, "File owner      : 54321");
        EXPECT_EQ(examine_file(path).group, "File group      : 54321");
    }
}

}  // namespace
