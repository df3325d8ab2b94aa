// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

struct Bookmark;
struct BookmarkAddition;

/// Writes a bookmarks file without bookmarks: 1 written, 0 cannot be.
int GenerateNewBookmarkFile(const std::string& path);
/// Makes the menus of a bookmarks file and puts them on the "BM" buttons: 1 made, 0 cannot be read, -1 the
/// first line lacks "_BOOKMARK", 2 too many bookmarks; the buttons keep what they have but for 1.
int SetupBookmarksMenu(const std::string& path);
/// Adds a bookmark to a file, which has not changed but for the result 1.
BookmarkAddition AddNewBookmark(const std::string& path, const Bookmark& bookmark);

/// Makes the menus; what is wrong with the file goes to the Message Board.
void load_bookmarks_at_startup();
