// SPDX-License-Identifier: MIT
#include "settings/bookmark_format.h"

#include <climits>

#include <gtest/gtest.h>

namespace {

enum Category : std::size_t { directory, source, html = 4, other = 6 };

/// A file with the given entries for directories and sources, and what their count lines say of them.
std::string file_of(const std::string& directories, int directory_count, const std::string& sources = "",
                    int source_count = 0) {
    return "ORVIK_BOOKMARKS\nDirectory:" + std::to_string(directory_count) +
           "\nSource:" + std::to_string(source_count) +
           "\nExecutable:0\nScript:0\nHTML:0\nPDF:0\nOther:0\n$$DIRECTORY\n" + directories + "$$SOURCE\n" +
           sources + "$$EXECUTABLE\n$$SCRIPT\n$$HTML\n$$PDF\n$$OTHER\n";
}

TEST(BookmarkFormat, ANewFileHasAHeaderSevenCountsAndSevenMarkers) {
    EXPECT_EQ(new_bookmark_file(),
              "$ORVIK_BOOKMARKS\nDirectory:0\nSource:0\nExecutable:0\nScript:0\nHTML:0\nPDF:0\nOther:0\n"
              "$$DIRECTORY\n$$SOURCE\n$$EXECUTABLE\n$$SCRIPT\n$$HTML\n$$PDF\n$$OTHER\n");
    EXPECT_EQ(parse_bookmarks(new_bookmark_file()), std::vector<Bookmark>{});
}

TEST(BookmarkFormat, ReadsSectionsByTheBeginningOfTheirMarkers) {
    const std::string text =
        "my _BOOKMARKS\nlost,/before\n$$SOURCE\nlost,/too\n$$DIR\na,/a,b\n\n,/c\nd\n$$HTanything\n"
        "h,/h.html\n$$OTHERS\no,/o";
    EXPECT_EQ(parse_bookmarks(text), (std::vector<Bookmark>{{directory, "a", "/a,b"},
                                                            {directory, "a", "/c"},
                                                            {directory, "d", "/c"},
                                                            {html, "h", "/h.html"},
                                                            {other, "o", "/o"}}));
    EXPECT_EQ(parse_bookmarks("$$DIRECTORY\na,/a\n"), std::nullopt);
}

TEST(BookmarkFormat, AddsWhereTheNameBelongsAndTheCountsSay) {
    const struct {
        std::string what;
        std::string before;
        Bookmark bookmark;
        int result;
        std::string after;
    } cases[] = {
        {"the first", new_bookmark_file(), {directory, "beta", "/b"}, 1, file_of("beta,/b\n", 1)},
        {"before", file_of("beta,/b\n", 1), {directory, "alpha", "/a"}, 1, file_of("alpha,/a\nbeta,/b\n", 2)},
        {"between", file_of("a,/a\nc,/c\n", 2), {directory, "b", "/b"}, 1, file_of("a,/a\nb,/b\nc,/c\n", 3)},
        {"behind", file_of("a,/a\nB,/c\n", 2), {directory, "b", "/b"}, 1, file_of("a,/a\nB,/c\nb,/b\n", 3)},
        {"by bytes",
         file_of("a,/a\n", 1),
         {directory, "\xc3\xa4", "/b"},
         1,
         file_of("a,/a\n\xc3\xa4,/b\n", 2)},
        {"another category", file_of("a,/a\n", 1), {source, "a", "/b"}, 1, file_of("a,/a\n", 1, "a,/b\n", 1)},
        {"a name that is there", file_of("a,/a\nb,/b\n", 2), {directory, "b", "/c"}, 3, ""},
        {"a count too low",
         file_of("a,/a\nm,/m\n", 1),
         {directory, "z", "/z"},
         1,
         file_of("a,/a\nz,/z\nm,/m\n", 2)},
        {"a count of none", file_of("a,/a\n", 0), {directory, "z", "/z"}, 1, file_of("z,/z\na,/a\n", 1)},
        {"a count too high", file_of("a,/a\n", 9), {directory, "z", "/z"}, 1, file_of("a,/a\nz,/z\n", 10)},
        {"no header", "Directory:0\n", {directory, "a", "/a"}, -1, ""},
        {"a count line too few", "_BOOKMARK\nDirectory:0\n$$DIRECTORY\n", {directory, "a", "/a"}, -1, ""},
        {"no section", file_of("", 0).substr(0, 89), {other, "a", "/a"}, -1, ""},
    };
    for (const auto& row : cases) {
        const BookmarkAddition addition = add_bookmark(row.before, row.bookmark);
        EXPECT_EQ(addition.result, row.result) << row.what;
        EXPECT_EQ(addition.contents, row.after) << row.what;
    }
}

TEST(BookmarkFormat, RefusesAThousandLines) {
    std::string entries;
    constexpr int most = 999 - 7 - 1;  // but for the markers and the new one
    for (int i = 0; i < most; ++i) {
        entries += "a" + std::to_string(1000 + i) + ",/a\n";
    }
    EXPECT_EQ(add_bookmark(file_of(entries, most), {directory, "b", "/b"}).result, 1);
    EXPECT_EQ(add_bookmark(file_of(entries + "az,/a\n", most + 1), {directory, "b", "/b"}).result, 2);
}

TEST(BookmarkFormat, GetCountReadsTheNumberBehindTheColon) {
    const std::pair<std::string_view, int> cases[] = {
        {"Directory:12", 12}, {"a:0:7", 0}, {"Source: 3", 3}, {"Source:x", 0},
        {"Source", -1},       {"PDF:", -1}, {"Source:-4", 0}, {"", -1},
    };
    for (const auto& [line, count] : cases) {
        EXPECT_EQ(GetCount(line), count) << line;
    }
    EXPECT_LT(GetCount("Other:999999999"), INT_MAX / 2);
}

TEST(BookmarkFormat, RefusesWhatItCouldNotReadBack) {
    const std::pair<Bookmark, std::string_view> cases[] = {
        {{directory, "a", "/a,b"}, ""},
        {{directory, "a,b", "/a"}, "Illegal bookmark name. Remove comma."},
        {{directory, "a", "/a\nb"}, "Bookmark holds a line end"},
        {{directory, std::string("a\0", 2), "/a"}, "Bookmark holds a line end"},
        {{directory, "$$HT", "/a"}, "Bookmark name begins like a section of the file"},
        {{directory, "a", std::string(1021, 'x')}, ""},
        {{directory, "a", std::string(1022, 'x')}, "Bookmark is too long"},
    };
    for (const auto& [bookmark, refusal] : cases) {
        EXPECT_EQ(bookmark_refusal(bookmark), refusal) << bookmark.name;
    }
}

}  // namespace
