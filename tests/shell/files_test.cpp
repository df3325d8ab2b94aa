// SPDX-License-Identifier: MIT
#include "shell/files.h"

#include "tests/support/other_process.h"
#include "tests/support/scratch_directory.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <tuple>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

mode_t mode_of(const fs::path& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) == 0 ? info.st_mode & 07777U : 0;
}

/// Replaces a file in a process that root has left; anybody else is one who is not root.
int replace_as_ordinary(const std::string& path) {
    return in_child([&] { return become_ordinary() ? save_file(path, "new") : -1; });
}

TEST(ReadFile, GivesAllBytesUpToTheLimit) {
    const ScratchDirectory home;
    const std::string text = "a\0b\xff\n"s + std::string(200'000, 'x');
    const std::string path = home.write("name\xff", text);
    EXPECT_EQ(read_file(path, text.size()).error, 0);
    EXPECT_EQ(read_file(path, text.size()).text, text);
    EXPECT_EQ(read_file(path, text.size() - 1).error, EFBIG);
    EXPECT_EQ(read_file(path, 3).text, "a\0b"s);
}

TEST(ReadFile, RefusesWhatIsNoRegularFileWithoutWaiting) {
    const ScratchDirectory home;
    ASSERT_EQ(mkfifo((home / "fifo").c_str(), 0600), 0);
    home.write("file", "");
    EXPECT_EQ(read_file(home / "fifo", 9).error, EINVAL);
    EXPECT_EQ(read_file("/dev/zero", 9).error, EINVAL);
    EXPECT_EQ(read_file(home.path(), 9).error, EISDIR);
    EXPECT_EQ(read_file(home / "missing", 9).error, ENOENT);
    EXPECT_EQ(read_file((home / "file").string() + "\0.old"s, 9).error, EINVAL);
    EXPECT_EQ(read_file(home / "file", 0).error, 0);
}

TEST(ReadFile, TellsWhoElseMayHaveWrittenIt) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of somebody else's";
    }
    const ScratchDirectory home;
    ASSERT_EQ(chmod(home.path().c_str(), 0755), 0);
    const std::string file = home.write("file", "");
    fs::create_symlink("file", home / "link");
    ASSERT_EQ(lchown((home / "link").c_str(), nobody - 1, nobody - 1), 0);
    const std::string written = "can be written by other users";
    const std::tuple<uid_t, gid_t, mode_t, std::string> cases[] = {
        {nobody, nobody, 0644, ""}, {0, 0, 0644, ""},
        {nobody, 0, 0664, written}, {nobody, nobody, 0646, written},
        {0, 0, 0664, written},      {nobody - 1, nobody, 0600 | 0044, "belongs to another user"},
    };
    for (const auto& [owner, group, mode, doubt] : cases) {
        ASSERT_EQ(chown(file.c_str(), owner, group), 0);
        ASSERT_EQ(chmod(file.c_str(), mode), 0);
        EXPECT_EQ(in_child([&] {
                      EXPECT_TRUE(become_ordinary());
                      EXPECT_EQ(read_file(home / "link", 9).doubt, doubt)
                          << owner << ' ' << group << ' ' << mode;
                      return 0;
                  }),
                  0);
    }
    // A group of the user's own, as root has: only its user is in it.
    ASSERT_EQ(chown(file.c_str(), 0, 0), 0);
    ASSERT_EQ(chmod(file.c_str(), 0664), 0);
    EXPECT_EQ(read_file(file, 9).doubt, "");
}

TEST(RemoveStaleTemporaryFiles, LeavesWhatIsNewOrNoneOfThem) {
    const ScratchDirectory home;
    const std::time_t now = std::time(nullptr);
    const auto write_old = [&](std::string_view name, std::time_t age) {
        const std::string path = home.write(name, "");
        const std::array<timespec, 2> times{timespec{now - age, 0}, timespec{now - age, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    };
    constexpr std::time_t day = 86'400;
    for (const char* name :
         {".orvik-saving.aZ09xy", ".orvik-saving.short", ".orvik-saving.toolong", ".orvik-saving.a-b_cd",
          ".orvik-script", ".orvik-status0", "x.orvik-saving.abcdef"}) {
        write_old(name, 2 * day);
    }
    write_old(".orvik-saving.abcdef", day - 60);
    fs::create_symlink("nowhere", home / ".orvik-saving.alinkk");
    fs::create_directory(home / ".orvik-saving.folder");
    remove_stale_temporary_files(home.path(), now + 60);
    EXPECT_EQ(listing(home.path()),
              (Names{".orvik-saving.a-b_cd", ".orvik-saving.abcdef", ".orvik-saving.alinkk -> nowhere",
                     ".orvik-saving.folder", ".orvik-saving.short", ".orvik-saving.toolong", ".orvik-script",
                     ".orvik-status0", "x.orvik-saving.abcdef"}));
    remove_stale_temporary_files(home.path(), now + 3 * day);
    EXPECT_FALSE(fs::exists(home / ".orvik-saving.abcdef"));
    EXPECT_TRUE(fs::is_symlink(home / ".orvik-saving.alinkk") && fs::exists(home / ".orvik-saving.folder"));
}

TEST(SaveFile, LeavesNoTemporaryFileThatWouldNotBeFoundLater) {
    const ScratchDirectory home;
    EXPECT_EQ(in_child([&] {
                  EXPECT_EQ(signal(SIGXFSZ, SIG_DFL), SIG_DFL);
                  const rlimit limit{100, 100};
                  EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
                  return save_file(home / "file", std::string(1000, 'x'));  // killed by a signal in the write
              }),
              -1);
    // None at all where the file system has files without names.
    EXPECT_LE(listing(home.path()).size(), 1U);
    remove_stale_temporary_files(home.path(), std::time(nullptr) + 100'000);
    EXPECT_EQ(listing(home.path()), Names{});
}

TEST(SaveFile, KeepsTheModeOrTakesTheOneAskedFor) {
    const std::tuple<std::string, SaveOptions, mode_t> cases[] = {{"old", {.new_mode = 0600}, 0755},
                                                                  {"old", {.exact_mode = 0606}, 0606},
                                                                  {"new\xff", {}, 0640},
                                                                  {"script", {.new_mode = 0777}, 0750},
                                                                  {"exact", {.exact_mode = 0666}, 0666}};
    const ScratchDirectory home;
    ASSERT_EQ(chmod(home.write("old", "old").c_str(), 04755), 0);
    const mode_t before = umask(027);
    for (const auto& [name, options, mode] : cases) {
        EXPECT_EQ(save_file(home / name, "new\0text"s, options), 0);
        EXPECT_EQ(read_file(home / name), "new\0text"s);
        EXPECT_EQ(mode_of(home / name), mode) << name;
    }
    EXPECT_EQ(umask(before), mode_t{027});
    EXPECT_EQ(listing(home.path()), (Names{"exact", "new\xff", "old", "script"}));
}

TEST(SaveFile, FollowsLinksToTheirEndUnlessToldOtherwise) {
    const ScratchDirectory home;
    const std::string target = home.write("far/target", "old");
    fs::create_symlink("target", home / "far/second");
    fs::create_symlink("far/second", home / "first");
    fs::create_symlink(home / "far/made", home / "dangling");
    EXPECT_EQ(save_file(home / "first", "new"), 0);
    EXPECT_EQ(read_file(home / "far/target"), "new");
    EXPECT_EQ(save_file(home / "dangling", "made"), 0);
    EXPECT_EQ(read_file(home / "far/made"), "made");
    EXPECT_EQ(listing(home.path()),
              (Names{"dangling -> " + (home / "far/made").string(), "far", "first -> far/second"}));
    EXPECT_EQ(save_file(home / "first", "own", {.links = Links::replace, .exact_mode = 0600}), 0);
    EXPECT_EQ(read_file(home / "first"), "own");
    EXPECT_EQ(mode_of(home / "first"), S_IRUSR | S_IWUSR);
    EXPECT_EQ(read_file(home / "far/target"), "new");
    EXPECT_EQ(listing(home / "far"), (Names{"made", "second -> target", "target"}));
}

TEST(SaveFile, FollowsNoLinkThatSomebodyElsePutIntoASharedDirectory) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a link of somebody else's";
    }
    constexpr uid_t other = nobody - 1;
    const std::tuple<mode_t, uid_t, uid_t, int> cases[] = {
        {01777, 0, other, EACCES},      {01777, 0, nobody, 0}, {01777, other, other, 0},
        {01777, nobody, other, EACCES}, {0777, 0, other, 0},   {01775, nobody, other, 0}};
    for (const auto& [mode, directory_owner, link_owner, error] : cases) {
        const ScratchDirectory home;
        fs::create_directory(home / "shared");
        const std::string target = home.write("own/target", "old");
        fs::create_symlink(target, home / "shared/link");
        for (const char* name : {"", "own", "own/target"}) {
            ASSERT_EQ(chown((home / name).c_str(), nobody, nobody), 0);
        }
        ASSERT_EQ(lchown((home / "shared/link").c_str(), link_owner, link_owner), 0);
        ASSERT_EQ(chown((home / "shared").c_str(), directory_owner, directory_owner), 0);
        ASSERT_EQ(chmod((home / "shared").c_str(), mode), 0);
        EXPECT_EQ(replace_as_ordinary(home / "shared/link"), error)
            << mode << ' ' << directory_owner << ' ' << link_owner;
        EXPECT_EQ(read_file(home / "own/target"), error == 0 ? "new" : "old");
    }
}

TEST(SaveFile, RefusesWhatIsNoRegularFile) {
    const ScratchDirectory home;
    fs::create_directory(home / "directory");
    fs::create_symlink("directory", home / "link");
    fs::create_symlink("loop", home / "loop");
    ASSERT_EQ(mkfifo((home / "fifo").c_str(), 0600), 0);
    const std::pair<std::string, int> cases[] = {
        {"link", EISDIR},         {"loop", ELOOP},      {"fifo", EINVAL},
        {"a\0b"s, EINVAL},        {"fifo/a", ENOTDIR},  {std::string(300, 'n'), ENAMETOOLONG},
        {"missing/file", ENOENT}, {"directory", EISDIR}};
    for (const auto& [name, error] : cases) {
        EXPECT_EQ(save_file((home / name).native(), "new"), error) << name;
    }
    EXPECT_EQ(save_file("", "new"), ENOENT);
    EXPECT_EQ(listing(home.path()), (Names{"directory", "fifo", "link -> directory", "loop -> loop"}));
    EXPECT_TRUE(fs::is_fifo(home / "fifo"));
}

TEST(SaveFile, LeavesAFileThatMayNotBeWritten) {
    const ScratchDirectory home;
    const std::string file = home.write("file", "old");
    ASSERT_EQ(chmod(file.c_str(), 0444), 0);
    ASSERT_EQ(chmod(home.path().c_str(), 0777), 0);
    EXPECT_EQ(replace_as_ordinary(file), EACCES);
    EXPECT_EQ(read_file(home / "file"), "old");
    EXPECT_EQ(listing(home.path()), Names{"file"});
}

TEST(SaveFile, GivesNobodyMoreRightsWhereTheGroupIsLost) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of a group that its owner is not in";
    }
    const ScratchDirectory home;
    const std::string file = home.write("file", "old");
    ASSERT_EQ(chmod(home.path().c_str(), 0777), 0);
    for (const auto& [before, after] : {std::pair{0664U, 0644U}, {0640U, 0600U}, {0606U, 0600U}}) {
        ASSERT_EQ(chown(file.c_str(), nobody, 0), 0);
        ASSERT_EQ(chmod(file.c_str(), before), 0);
        EXPECT_EQ(replace_as_ordinary(file), 0);
        EXPECT_EQ(mode_of(file), after);
    }
    ASSERT_EQ(chown(file.c_str(), nobody, nobody), 0);
    ASSERT_EQ(save_file(file, "root's"), 0);
    struct stat info {};
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_EQ(std::pair(info.st_uid, info.st_gid), std::pair(nobody, gid_t{nobody}));
}

TEST(SaveFile, LeavesTheOldFileOnAFullDisk) {
    const ScratchDirectory home;
    const auto fill_disk = [&] {
        if (!mount_small_disk(home.path(), "64k")) {
            return cannot_be_tried;
        }
        const std::string old(20'000, 'o');
        const std::string file = home.write("file", old);
        EXPECT_EQ(save_file(file, std::string(1'000'000, 'n')), ENOSPC);
        EXPECT_EQ(read_file(home / "file"), old);
        EXPECT_EQ(listing(home.path()), Names{"file"});
        return 0;
    };
    const int result = in_child(fill_disk);
    if (result == cannot_be_tried) {
        GTEST_SKIP() << "this system lets the test mount nothing";
    }
    EXPECT_EQ(result, 0);
}

}  // namespace
