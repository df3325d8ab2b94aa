// SPDX-License-Identifier: MIT
#include "app/status_file.h"

#include "tests/support/scratch_directory.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

struct Case {
    const char* name;
    std::string contents;
    ShellStatus expected;
};

class StatusFile : public testing::TestWithParam<Case> {};

TEST_P(StatusFile, IsParsed) { EXPECT_EQ(parse_status(GetParam().contents), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    All, StatusFile,
    testing::Values(Case{"Whole", "P:$ \nC:/tmp\nH:h\nU:u\nV:/view/v\n", {"$ ", "/tmp", "h", "u", "/view/v"}},
                    Case{"Empty", "", {}}, Case{"HalfWritten", "P:$ \nC:/tm", {.prompt = "$ ", .cwd = "/tm"}},
                    Case{"ValuesMissing", "P:\nC:\nH:h\nU\nV:\n", {.host = "h"}},
                    Case{"KeyAnywhereInTheLine", "xP:a\n", {.prompt = "a"}},
                    Case{"DirectoryHoldingAKeyIsTakenForIt",
                         "P:$\nC:/tmp/P:x\nH:h\n",
                         {.prompt = "/tmp/P:x", .host = "h"}},
                    Case{"LastLineOfAKeyHolds", "C:/a\nC:/b\n", {.cwd = "/b"}},
                    Case{"ColonsInTheValueStay", "C:/a:b:c\n", {.cwd = "/a:b:c"}},
                    Case{"ColonsInFrontAreSkipped", "::C:/a\n", {.cwd = "/a"}},
                    Case{"NulEndsTheLine", std::string("C:/a\0b\nH:h\n", 11), {.cwd = "/a", .host = "h"}},
                    Case{"LongValuesAreCut",
                         "H:" + std::string(200, 'h') + "\nV:" + std::string(200, 'v') + "\n",
                         {.host = std::string(79, 'h'), .view = std::string(99, 'v')}},
                    Case{"LongLineIsTakenInPieces",
                         "C:/" + std::string(1020, 'd') + "H:in the second piece\n",
                         {.cwd = "/" + std::string(1020, 'd'), .host = "in the second piece"}}),
    [](const auto& test) { return test.param.name; });

TEST(StatusLine, ShowsWhatIsEnabledInItsOrder) {
    const ShellStatus status{.host = "h", .user = "u", .view = "/view/v"};
    EXPECT_EQ(status_line(status, 15, 123), "Host: h   User: u   PID: 123   View: v   ");
    EXPECT_EQ(status_line(status, status_view | status_pid, 7), "PID: 7   View: v   ");
    EXPECT_EQ(status_line({.view = "Not_used"}, status_view, 1), "View: Not_used   ");
    EXPECT_EQ(status_line(status, 0, 1), "");
}

TEST(StatusFileCreation, TakesTheSmallestFreeNumberForItsOwnerOnly) {
    const ScratchDirectory home;
    std::ofstream(home.path() / ".orvik-status0") << "of another";
    const std::string path = create_status_file(home.path());
    EXPECT_EQ(path, home.path() / ".orvik-status1");
    struct stat info {};
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);
    EXPECT_EQ(info.st_size, 0);
    EXPECT_EQ(fs::file_size(home.path() / ".orvik-status0"), 10U);
}

TEST(StatusFileCreation, FollowsNoLink) {
    const ScratchDirectory home;
    fs::create_symlink(home.path() / "target", home.path() / ".orvik-status0");
    EXPECT_EQ(create_status_file(home.path()), home.path() / ".orvik-status1");
    EXPECT_FALSE(fs::exists(home.path() / "target"));
}

TEST(StatusFileCreation, GivesUpWhenAllNumbersAreTaken) {
    const ScratchDirectory home;
    for (int number = 0; number < 199; ++number) {
        std::ofstream(home.path() / (".orvik-status" + std::to_string(number)));
    }
    EXPECT_EQ(create_status_file(home.path()), home.path() / ".orvik-status199");
    EXPECT_EQ(create_status_file(home.path()), "");
    EXPECT_EQ(create_status_file(home.path() / "missing"), "");
}

TEST(StatusFileReading, TakesRegularFilesOnly) {
    const ScratchDirectory home;
    const std::string fifo = home.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    std::ofstream(home.path() / "file") << "C:/tmp\n";
    EXPECT_EQ(read_status_file(home.path() / "file"), "C:/tmp\n");
    EXPECT_EQ(read_status_file(home.write("huge", std::string(70'000, 'x'))), std::string(65'536, 'x'));
    EXPECT_EQ(read_status_file(fifo), std::nullopt);
    EXPECT_EQ(read_status_file(home.path()), std::nullopt);
    EXPECT_EQ(read_status_file(home.path() / "missing"), std::nullopt);
    EXPECT_EQ(read_status_file(""), std::nullopt);
}

}  // namespace
