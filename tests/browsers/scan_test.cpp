// SPDX-License-Identifier: MIT
#include "browsers/scan.h"

#include "browsers/file_type.h"
#include "tests/support/scratch_directory.h"

#include <filesystem>
#include <tuple>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

const std::string up = "../ (Go up 1 directory level)";

std::vector<std::string> texts(const Scan& scan) {
    std::vector<std::string> all;
    for (const ListRow& row : scan.rows) {
        all.push_back(row.text);
    }
    return all;
}

time_t fs_time(const fs::path& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mtime : 0;
}

/// Fills a directory up to so many entries, "." and ".." counted.
void fill(const ScratchDirectory& directory, int entries) {
    const auto present = std::distance(fs::directory_iterator(directory.path()), {}) + 2;
    for (int i = static_cast<int>(present); i < entries; ++i) {
        directory.write("f" + std::to_string(i), "");
    }
}

TEST(Scan, ListsDirectoriesThenFilesByBytes) {
    const ScratchDirectory directory;
    EXPECT_EQ(scan_directory(directory.path()).rows, (std::vector<ListRow>{{up, Glyph::arrow}}));
    EXPECT_EQ(scan_directory(directory.path()).count, 0);
    EXPECT_EQ(scan_subdirectories(directory.path()).result, SCAN_EMPTY);
    for (const char* file : {"Beta", "alpha", ".dot", "a\nb", "\xff"}) {
        directory.write(file, "123");
    }
    fs::create_directory(directory / "Alpha");
    fs::create_directory_symlink("Alpha", directory / "zlink");
    fs::create_symlink("nowhere", directory / "dangling");
    fs::create_symlink("Beta", directory / "link");
    directory.write_script("run", "");
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    const Scan scan = scan_directory(directory.path());
    EXPECT_EQ(scan.result, SCAN_OK);
    EXPECT_EQ(scan.count, 11);
    EXPECT_EQ(scan.rows, (std::vector<ListRow>{{up, Glyph::arrow},
                                               {"Alpha/", Glyph::directory},
                                               {"zlink/", Glyph::directory_link},
                                               {".dot", Glyph::document},
                                               {"Beta", Glyph::document},
                                               {"a\nb", Glyph::document},
                                               {"alpha", Glyph::document},
                                               {"fifo", Glyph::document},
                                               {"link", Glyph::document_link},
                                               {"run", Glyph::executable},
                                               {"\xff", Glyph::document}}));
    ASSERT_EQ(scan.facts.size(), scan.rows.size());
    EXPECT_EQ(scan.facts[4].size, 3);
    EXPECT_EQ(scan.facts[4].modified, fs_time(directory / "Beta"));
    EXPECT_EQ(scan_subdirectories(directory.path()).rows,
              (std::vector<ListRow>{{"Alpha", Glyph::none}, {"zlink", Glyph::none}}));
    for (const std::string& path :
         {(directory / "none").string(), (directory / "Beta").string(), (directory / "fifo").string(),
          std::string(), directory.path().string() + '\0'}) {
        EXPECT_EQ(scan_directory(path).result, SCAN_OPEN_FAILED) << path;
        EXPECT_EQ(scan_subdirectories(path).result, SCAN_OPEN_FAILED) << path;
    }
}

TEST(Scan, FiltersNamesAndCountsDots) {
    const ScratchDirectory directory;
    for (const char* file : {"readme", "Report", "xre", ".re"}) {
        directory.write(file, "");
    }
    using Rows = std::vector<std::string>;
    const std::tuple<NameFilter, ScanResult, int, Rows> cases[] = {
        {{NameFilter::starting, "RE", ""}, SCAN_OK, 2, {up, "Report", "readme"}},
        {{NameFilter::starting, "Re", "", true}, SCAN_OK, 1, {up, "Report"}},
        {{NameFilter::containing, "", "E"}, SCAN_OK, 4, {up, ".re", "Report", "readme", "xre"}},
        {{NameFilter::starting | NameFilter::containing, "r", "port"}, SCAN_OK, 1, {up, "Report"}},
        {{0, "x", "y"}, SCAN_OK, 6, {up, ".re", "Report", "readme", "xre"}},
        {{NameFilter::starting, "..", ""}, SCAN_OK, 1, {up}},
        {{NameFilter::starting, "none", ""}, SCAN_EMPTY, 0, {}},
    };
    for (const auto& [filter, result, count, rows] : cases) {
        const Scan scan = scan_filtered(directory.path(), filter);
        EXPECT_EQ(std::tuple(scan.result, scan.count, texts(scan)), std::tuple(result, count, rows))
            << filter.mode << filter.start << filter.text;
    }
}

TEST(Scan, TakesOneNameLessThanTenThousand) {
    const ScratchDirectory directory;
    fill(directory, 9999);
    EXPECT_EQ(scan_directory(directory.path()).count, 9997);
    EXPECT_EQ(scan_directory(directory.path()).rows.size(), 9998U);
    fill(directory, 10000);
    EXPECT_EQ(scan_directory(directory.path()).result, SCAN_TOO_MANY);
    EXPECT_EQ(scan_filtered(directory.path(), {NameFilter::starting, "f", ""}).result, SCAN_OK);
}

TEST(FileType, GoesByNameBeforeKind) {
    const ScratchDirectory directory;
    directory.write("a.c", "");
    directory.write("b.pdf", "");
    fs::create_directory(directory / "index.htm");
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    const std::pair<std::string, FileType> cases[] = {
        {"", FT_NO_NAME},
        {directory / "none.html", FT_NO_FILE},
        {directory / "index.htm", FT_HTML},
        {directory / "b.pdf", FT_PDF},
        {directory.path(), FT_DIRECTORY},
        {directory / "a.c", FT_REGULAR},
        {directory / "fifo", FT_SPECIAL},
    };
    for (const auto& [path, type] : cases) {
        EXPECT_EQ(GetFileType(path), type) << path;
    }
}

}  // namespace
