// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text of a bookmarks file: a header, a count line for each category, then a section for each, which is
// a marker line and entries "name,path" sorted by name:
//
//     ORVIK_BOOKMARKS
//     Directory:1
//     Source:0
//     ...
//     $$DIRECTORY
//     sources,/home/me/src
//     $$SOURCE
//     ...

/// A kind of bookmarks. Its number, from 0, is its place in the file, the menus and "File Type".
struct BookmarkCategory {
    std::string_view count_key;  ///< of its count line
    std::string_view marker;     ///< as written
    std::size_t significant;     ///< of the marker's characters: a line that begins with them is one
};

inline constexpr std::array bookmark_categories{
    BookmarkCategory{"Directory:", "$$DIRECTORY", 5},
    BookmarkCategory{"Source:", "$$SOURCE", 8},
    BookmarkCategory{"Executable:", "$$EXECUTABLE", 6},
    BookmarkCategory{"Script:", "$$SCRIPT", 8},
    BookmarkCategory{"HTML:", "$$HTML", 4},
    BookmarkCategory{"PDF:", "$$PDF", 5},
    BookmarkCategory{"Other:", "$$OTHER", 7},
};

struct Bookmark {
    std::size_t category = 0;
    std::string name;
    std::string path;

    bool operator==(const Bookmark&) const = default;
};

/// A file without bookmarks.
[[nodiscard]] std::string new_bookmark_file();

/// So many bookmarks make menus; more are no bookmarks file of a user.
inline constexpr std::size_t most_bookmarks = 10'000;

/// The bookmarks in the file's order, as far as one more than the most; nothing when its first line does not
/// hold "_BOOKMARK". Lines before the first directory marker are none. An entry whose name or path is missing
/// has that of the entry before.
[[nodiscard]] std::optional<std::vector<Bookmark>> parse_bookmarks(std::string_view contents);

/// The number behind the first ":" of a count line; -1 when nothing stands there.
[[nodiscard]] int GetCount(std::string_view line);

/// Why a bookmark of that name and path cannot stand in the file; empty when it can.
[[nodiscard]] std::string_view bookmark_refusal(const Bookmark& bookmark);

struct BookmarkAddition {
    /// 1 added; 0 the file cannot be read or replaced; -1 no bookmarks file; 2 too many lines; 3 the name
    /// exists in that category.
    int result = 1;
    int error = 0;         ///< why it cannot be (errno)
    std::string contents;  ///< of the file with the bookmark, when it was added
};

/// Adds a bookmark where its name belongs in its section. The section's end is where its count line says; the
/// counts are trusted. Other lines stay as they are, but for those before the first directory marker.
[[nodiscard]] BookmarkAddition add_bookmark(std::string_view contents, const Bookmark& bookmark);
