// SPDX-License-Identifier: MIT
#include "browsers/tree/listing.h"

#include "browsers/paths.h"
#include "browsers/tree/name_pattern.h"
#include "tests/support/scratch_directory.h"

#include <cerrno>
#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

TreeListing list(const fs::path& directory, TreeFilter filter = {}) {
    Progress progress;
    return list_for_tree(directory, filter, progress);
}

Names names_of(const TreeListing& listing) {
    Names names;
    for (const TreeEntry& entry : listing.entries) {
        names.push_back(entry.name);
    }
    return names;
}

TEST(TreeListing, ShowsWhatTheFilterLets) {
    const ScratchDirectory directory;
    EXPECT_EQ(std::tuple(list(directory.path()).total, list(directory.path()).displayed), std::tuple(0, 0));
    for (const char* file : {"Beta", "alpha", ".profile", "..cache", "\xff"}) {
        directory.write(file, "");
    }
    fs::create_directory(directory / "Dir");
    fs::create_directory_symlink("Dir", directory / "link");
    const std::tuple<TreeFilter, int, int, Names> cases[] = {
        {{}, 6, 5, {"Beta", "Dir", "alpha", "link", "\xff"}},
        {{.dot_files = true}, 6, 6, {".profile", "Beta", "Dir", "alpha", "link", "\xff"}},
        {{.directories_only = true}, 6, 2, {"Dir", "link"}},
    };
    for (const auto& [filter, total, displayed, names] : cases) {
        const TreeListing listing = list(directory.path(), filter);
        EXPECT_EQ(std::tuple(listing.total, listing.displayed, names_of(listing)),
                  std::tuple(total, displayed, names))
            << filter.dot_files << filter.directories_only;
    }
}

TEST(TreeListing, CountsWhatLeadsNowhereAsTheKindBefore) {
    const ScratchDirectory directory;
    fs::create_symlink("nowhere", directory / "dangling");
    EXPECT_EQ(list(directory.path()).displayed, 1);
    EXPECT_EQ(list(directory.path(), {.directories_only = true}).displayed, 1);
    EXPECT_EQ(names_of(list(directory.path())), Names{});
}

TEST(TreeListing, TellsWhyThereIsNone) {
    const ScratchDirectory directory;
    directory.write("file", "");
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    for (const auto& [name, error] :
         {std::pair("none", ENOENT), std::pair("file", ENOTDIR), std::pair("fifo", ENOTDIR)}) {
        EXPECT_EQ(list(directory / name).result, TreeListing::Result::not_opened) << name;
        EXPECT_EQ(list(directory / name).error, error) << name;
    }
    Progress progress;
    progress.stop();
    EXPECT_EQ(list_for_tree(directory.path(), {}, progress).result, TreeListing::Result::stopped);
}

TEST(TreeListing, StopsAtTenThousandNames) {
    const ScratchDirectory directory;
    for (int i = 0; i < TreeListing::most_names - 1; ++i) {
        directory.write("f" + std::to_string(i), "");
    }
    EXPECT_FALSE(list(directory.path()).is_cut);
    directory.write("g", "");
    directory.write("h", "");
    EXPECT_EQ(list(directory.path()).displayed, TreeListing::most_names);
    EXPECT_TRUE(list(directory.path()).is_cut);
}

TEST(FileGlance, TellsWhereALinkLeadsAndWhyADirectoryCannotBeRead) {
    const ScratchDirectory directory;
    directory.write("target", "12345");
    fs::create_symlink("target", directory / "link");
    FileGlance glance;
    ASSERT_TRUE(glance_at(directory / "link", glance));
    EXPECT_EQ(glance.size, 5);
    EXPECT_EQ(glance.link_target, "target");
    EXPECT_TRUE(S_ISREG(glance.mode));
    EXPECT_EQ(names_of(list(directory.path())), (Names{"link", "target"}));
    EXPECT_EQ(list(directory.path()).entries.front().glance.link_target, "target");
    EXPECT_FALSE(glance_at(directory / "none", glance));
    EXPECT_FALSE(glance_at(directory.path().string() + '\0', glance));

    fs::create_directory(directory / "closed");
    ASSERT_EQ(chmod((directory / "closed").c_str(), 0), 0);
    constexpr uid_t nobody = 65534;
    const uid_t before = geteuid();
    if (before == 0) {
        ASSERT_EQ(chmod(directory.path().c_str(), 0755), 0);
        ASSERT_EQ(seteuid(nobody), 0);
    }
    const bool is_there = glance_at(directory / "closed", glance);
    ASSERT_EQ(seteuid(before), 0);
    EXPECT_TRUE(is_there);
    EXPECT_EQ(glance.read_error, EACCES);
}

TEST(Paths, AreJoinedResolvedAndLeft) {
    EXPECT_EQ(path_in("/a", "b"), "/a/b");
    EXPECT_EQ(path_in("/", "b"), "/b");
    const std::pair<std::string, std::string> meant[] = {
        {"/a/b//", "/a/b"},   {"/", "/"},  {"///", "/"}, {".", "/start"},
        {"./x/", "/start/x"}, {"..", "/"}, {"", ""},     {"a", "a"},
    };
    for (const auto& [path, expected] : meant) {
        EXPECT_EQ(directory_meant(path, "/start"), expected) << path;
    }
    for (const auto& [path, expected] :
         {std::pair("/a/b", "/a"), std::pair("/usr", "/"), std::pair("/", "/"), std::pair("/a/b/", "/a")}) {
        EXPECT_EQ(parent_directory(path), expected) << path;
    }
}

TEST(NamePattern, MatchesByPlaceAndCase) {
    using enum NamePattern::Place;
    const std::tuple<NamePattern, Names> cases[] = {
        {{beginning, false, "MAKE"}, {"Makefile", "makefile"}},
        {{beginning, true, "make"}, {"makefile"}},
        {{end, false, ".H"}, {"a.h", "h.h"}},
        {{anywhere, true, "k"}, {"Makefile", "makefile"}},
        {{anywhere, false, "h"}, {"a.h", "h.h"}},
    };
    for (const auto& [pattern, expected] : cases) {
        Names matching;
        for (const char* label : {"Makefile", "makefile", "a.h", "h.h"}) {
            if (pattern.matches(label)) {
                matching.emplace_back(label);
            }
        }
        EXPECT_EQ(matching, expected) << pattern.text;
    }
}

}  // namespace
