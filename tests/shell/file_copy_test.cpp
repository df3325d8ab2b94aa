// SPDX-License-Identifier: MIT
#include "shell/file_copy.h"

#include "shell/file_rename.h"
#include "tests/support/other_process.h"
#include "tests/support/scratch_directory.h"

#include <array>
#include <csignal>
#include <random>
#include <thread>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

using namespace std::string_literals;
namespace fs = std::filesystem;
using Names = std::vector<std::string>;

struct stat status_of(const fs::path& path) {
    struct stat info {};
    EXPECT_EQ(stat(path.c_str(), &info), 0) << path;
    return info;
}

/// Twelve megabytes of which eight are a hole, and one at the end.
void write_sparse(const fs::path& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT, 0600);
    constexpr off_t megabyte = 1 << 20;
    const std::string data(megabyte, 'd');
    for (const off_t at : {0, 1, 10}) {
        EXPECT_EQ(pwrite(file, data.data(), data.size(), at * megabyte), megabyte);
    }
    EXPECT_EQ(ftruncate(file, 12 * megabyte), 0);
    close(file);
}

TEST(FileCopy, TakesContentsHolesAndModeAndTellsTheBytes) {
    const ScratchDirectory home;
    home.write("text", "a\0b\xff"s);
    home.write("empty", "");
    home.write("large", std::string(40'000'000, 'x'));
    write_sparse(home / "sparse");
    ASSERT_EQ(chmod((home / "text").c_str(), 04755), 0);
    fs::create_symlink("text", home / "link");
    const mode_t before = umask(027);
    const std::tuple<std::string, mode_t> cases[] = {
        {"text", 0750}, {"link", 0750}, {"empty", 0640}, {"large", 0640}, {"sparse", 0600}};
    for (const auto& [name, mode] : cases) {
        Progress progress;
        const fs::path copy = home / (name + " copy\xff");
        EXPECT_EQ(file_copy(copy, home / name, &progress), COPY_OK) << name;
        EXPECT_TRUE(read_file(copy) == read_file(home / name)) << name;
        EXPECT_EQ(status_of(copy).st_mode & 07777U, mode) << name;
        EXPECT_LE(status_of(copy).st_blocks, status_of(home / name).st_blocks + 8) << name;
        EXPECT_EQ(progress.items(), status_of(copy).st_size) << name;
    }
    umask(before);
    EXPECT_EQ(file_copy(home / "made up", "/proc/self/mountinfo"), COPY_OK);  // it tells no size
    EXPECT_EQ(read_file(home / "made up"), read_file("/proc/self/mountinfo"));
}

TEST(FileCopy, ReplacesWhereALinkLeadsAndKeepsTheMode) {
    const ScratchDirectory home;
    home.write("source", "new");
    ASSERT_EQ(chmod(home.write("far/old", std::string(9999, 'o')).c_str(), 0604), 0);
    fs::create_symlink("far/old", home / "link");
    fs::create_symlink("far/made", home / "dangling");
    EXPECT_EQ(file_copy(home / "link", home / "source"), COPY_OK);
    EXPECT_EQ(file_copy(home / "dangling", home / "source"), COPY_OK);
    EXPECT_EQ(read_file(home / "far/old"), "new");
    EXPECT_EQ(read_file(home / "far/made"), "new");
    EXPECT_EQ(status_of(home / "far/old").st_mode & 07777U, 0604U);
    EXPECT_EQ(listing(home.path()), (Names{"dangling -> far/made", "far", "link -> far/old", "source"}));
}

TEST(FileCopy, ChangesNothingWhereItRefuses) {
    const ScratchDirectory home;
    for (const char* name : {"source", "target", "locked", "closed/target"}) {
        ASSERT_EQ(chmod(home.write(name, name).c_str(), 0666), 0);
    }
    fs::create_hard_link(home / "source", home / "twin");
    ASSERT_EQ(mkfifo((home / "fifo").c_str(), 0666), 0);
    ASSERT_EQ(chmod(home.path().c_str(), 0777), 0);
    ASSERT_EQ(chmod((home / "closed").c_str(), 0755), 0);
    ASSERT_EQ(chmod((home / "locked").c_str(), 0), 0);
    const Names before = listing(home.path());
    const std::tuple<std::string, std::string, CopyResult> cases[] = {
        {"target", "none", COPY_FAILED},         {"target", "closed", COPY_FAILED},
        {"target", "fifo", COPY_FAILED},         {"target", "locked", COPY_FAILED},
        {"target", "source\0"s, COPY_FAILED},    {"source", "source", COPY_FAILED},
        {"twin", "source", COPY_FAILED},         {"closed", "source", COPY_NOT_OPENED},
        {"fifo", "source", COPY_NOT_OPENED},     {"none/new", "source", COPY_NOT_OPENED},
        {"locked", "source", COPY_NOT_OPENED},   {"closed/new", "source", COPY_NOT_OPENED},
        {"target\0"s, "source", COPY_NOT_OPENED}};
    EXPECT_EQ(in_child([&] {
                  EXPECT_TRUE(become_ordinary());
                  for (const auto& [to, from, result] : cases) {
                      EXPECT_EQ(file_copy((home / to).native(), (home / from).native()), result)
                          << from << " to " << to;
                  }
                  Progress stopped;
                  stopped.stop();
                  EXPECT_EQ(file_copy(home / "target", home / "source", &stopped), COPY_STOPPED);
                  return 0;
              }),
              0);
    EXPECT_EQ(listing(home.path()), before);
    EXPECT_EQ(read_file(home / "source"), "source");
    EXPECT_EQ(read_file(home / "target"), "target");
}

TEST(FileCopy, LeavesTheOldFileOnAFullDisk) {
    const ScratchDirectory home;
    const ScratchDirectory elsewhere;
    const std::string source = elsewhere.write("source", std::string(1'000'000, 'n'));
    const int result = in_child([&] {
        if (!mount_small_disk(home.path(), "64k")) {
            return cannot_be_tried;
        }
        const std::string old(20'000, 'o');
        home.write("file", old);
        for (const char* name : {"file", "new"}) {
            EXPECT_EQ(file_copy(home / name, source), COPY_FAILED);
        }
        EXPECT_EQ(read_file(home / "file"), old);
        EXPECT_EQ(listing(home.path()), Names{"file"});
        return 0;
    });
    if (result == cannot_be_tried) {
        GTEST_SKIP() << "this system lets the test mount nothing";
    }
    EXPECT_EQ(result, 0);
}

/// Runs steps over and over in a process that is killed after a random time.
template <typename Steps>
void kill_in(Steps steps) {
    static std::minstd_rand random(1);
    const pid_t child = fork();
    if (child == 0) {
        for (;;) {
            steps();
        }
    }
    std::this_thread::sleep_for(std::chrono::microseconds{random() % 4000});
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

TEST(FileCopy, LosesNothingWhenKilledAtAnyMoment) {
    const ScratchDirectory home;
    const std::array contents{std::string(1'000'000, 'a'), std::string(900'000, 'b')};
    home.write("a", contents[0]);
    home.write("b", contents[1]);
    home.write("old", contents[0]);
    constexpr int times = 200;
    for (int i = 0; i < times; ++i) {
        kill_in([&] {
            (void)file_copy(home / "old", home / "b");
            (void)file_copy(home / "old", home / "a");
            (void)file_copy(home / "new", home / "b");
            unlink((home / "new").c_str());
        });
        const std::string old = read_file(home / "old");
        ASSERT_TRUE(old == contents[0] || old == contents[1]) << old.size();
        ASSERT_TRUE(!fs::exists(home / "new") || read_file(home / "new") == contents[1]);
    }
    fs::remove(home / "new");
    // At most those that were killed between naming the whole file and renaming it.
    EXPECT_LE(listing(home.path()).size(), 3U + times / 10);
}

TEST(FileRename, KeepsOneNameWhenKilledAndTakesNone) {
    const ScratchDirectory home;
    home.write("a", "text");
    home.write("other", "other");
    fs::create_symlink("nowhere", home / "dangling");
    for (const char* name : {"other", "dangling", "a"}) {
        EXPECT_EQ(rename_to_new(home / "a", home / name), EEXIST) << name;
    }
    for (const auto& [from, to] : {std::pair{"none", "new"}, {"a", "none/new"}, {"a", ""}}) {
        EXPECT_EQ(rename_to_new(home / from, to == ""s ? "" : (home / to).string()), ENOENT);
    }
    for (int i = 0; i < 200; ++i) {
        kill_in([&] {
            (void)rename_to_new(home / "a", home / "b");
            (void)rename_to_new(home / "b", home / "a");
        });
        const Names names = listing(home.path());
        ASSERT_EQ(names.size(), 3U);
        ASSERT_EQ(read_file(home / names[0]), "text");
    }
}

}  // namespace
