// SPDX-License-Identifier: MIT
#include "shell/status_file.h"

#include "tests/support/scratch_directory.h"

#include <cerrno>
#include <filesystem>
#include <list>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

TEST(StatusFile, IsParsed) {
    const struct {
        const char* name;
        std::string contents;
        ShellStatus expected;
    } cases[] = {
        {"whole", "P:$ \nC:/tmp\nH:h\nU:u\nV:/view/v\n", {"$ ", "/tmp", "h", "u", "/view/v"}},
        {"half written", "P:$ \nC:/tm", {.prompt = "$ ", .cwd = "/tm"}},
        {"values missing", "P:\nC:\nH:h\nU\nV:\n", {.host = "h"}},
        {"key anywhere in the line", "xP:a\n", {.prompt = "a"}},
        {"directory holding a key", "P:$\nC:/tmp/P:x\nH:h\n", {.prompt = "/tmp/P:x", .host = "h"}},
        {"last line of a key holds", "C:/a\nC:/b\n", {.cwd = "/b"}},
        {"colons in the value stay", "::C:/a:b:c\n", {.cwd = "/a:b:c"}},
        {"NUL ends the line", "C:/a\0b\nH:h\n"s, {.cwd = "/a", .host = "h"}},
        {"long values are cut",
         "H:" + std::string(200, 'h') + "\nV:" + std::string(200, 'v') + "\n",
         {.host = std::string(79, 'h'), .view = std::string(99, 'v')}},
        {"long line is taken in pieces",
         "C:/" + std::string(1020, 'd') + "H:in the second piece\n",
         {.cwd = "/" + std::string(1020, 'd'), .host = "in the second piece"}},
    };
    for (const auto& [name, contents, expected] : cases) {
        EXPECT_EQ(parse_status(contents), expected) << name;
    }
}

TEST(StatusLine, ShowsWhatIsEnabledInItsOrder) {
    const ShellStatus status{.host = "h", .user = "u", .view = "/view/v"};
    EXPECT_EQ(status_line(status, 15, 123), "Host: h   User: u   PID: 123   View: v   ");
    EXPECT_EQ(status_line(status, status_view | status_pid, 7), "PID: 7   View: v   ");
    EXPECT_EQ(status_line({.view = "Not_used"}, status_view, 1), "View: Not_used   ");
    EXPECT_EQ(status_line(status, 0, 1), "");
}

TEST(StatusFileCreation, TakesTheSmallestFreeNumberForItsOwnerOnlyAndFollowsNoLink) {
    const ScratchDirectory home;
    home.write(".orvik-status0", "of another");
    fs::create_symlink(home / "target", home / ".orvik-status1");
    home.write(".orvik-status3", "");
    const StatusFile made = create_status_file(home.path());
    const std::string& path = made.path;
    EXPECT_EQ(path, home / ".orvik-status2");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0600});
    EXPECT_EQ(fs::file_size(path), 0U);
    EXPECT_EQ(read_file(home / ".orvik-status0"), "of another");
    EXPECT_FALSE(fs::exists(home / "target"));
}

TEST(StatusFileCreation, TakesOverWhatNoRunningCopyHoldsWhenAllNumbersAreTaken) {
    const ScratchDirectory home;
    const auto name = [](int number) { return ".orvik-status" + std::to_string(number); };
    fs::create_directory(home / name(0));
    fs::create_symlink(home.write("target", "kept"), home / name(1));
    fs::create_hard_link(home / "target", home / name(2));
    ASSERT_EQ(mkfifo((home / name(3)).c_str(), 0600), 0);
    std::list<StatusFile> held;
    for (int number = 4; number <= 198; ++number) {
        held.push_back(create_status_file(home.path()));
    }
    fs::permissions(home.write(name(100), "C:/left by a killed copy\n"), fs::perms{0644});
    held.erase(std::next(held.begin(), 100 - 4));
    held.push_back(create_status_file(home.path()));
    EXPECT_EQ(held.back().path, home / name(199)) << "a free number comes first";
    held.push_back(create_status_file(home.path()));
    EXPECT_EQ(held.back().path, home / name(100));
    EXPECT_EQ(read_file(home / name(100)), "");
    EXPECT_EQ(fs::status(home / name(100)).permissions(), fs::perms{0600});
    const StatusFile none = create_status_file(home.path());
    EXPECT_EQ(std::pair(none.path, none.error), std::pair(std::string(), EEXIST));
    EXPECT_EQ(read_file(home / "target"), "kept");
    EXPECT_EQ(create_status_file(home / "missing").error, ENOENT);
}

TEST(StatusFileReading, TakesRegularFilesOnly) {
    const ScratchDirectory home;
    ASSERT_EQ(mkfifo((home / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(read_status_file(home.write("file", "C:/tmp\n")), "C:/tmp\n");
    EXPECT_EQ(read_status_file(home.write("huge", std::string(70'000, 'x'))), std::string(65'536, 'x'));
    for (const std::string path : {home / "fifo", home.path(), home / "missing", fs::path()}) {
        EXPECT_EQ(read_status_file(path), std::nullopt) << path;
    }
}

}  // namespace
