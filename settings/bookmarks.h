// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

struct Bookmark;

/// Writes a bookmarks file without bookmarks: 1 written, 0 cannot be.
int GenerateNewBookmarkFile(const std::string& path);
/// Makes the menus of a bookmarks file and puts them on the "BM" buttons: 1 made, 0 cannot be read, -1 the
/// first line lacks "_BOOKMARK", 2 too many bookmarks; the buttons keep what they have but for 1.
int SetupBookmarksMenu(const std::string& path);
/// Adds a bookmark to a file: 1 added, 0 the file cannot be read or replaced, -1 no valid bookmarks file, 2
/// too many lines, 3 the name exists in its category. The file has not changed but for 1.
int AddNewBookmark(const std::string& path, const Bookmark& bookmark);

/// Makes the menus; what is wrong with the file goes to the Message Board.
void load_bookmarks_at_startup();
