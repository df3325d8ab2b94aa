// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include <sys/types.h>

/// What a path is for opening. Those from 0 on are the categories of bookmarks with these numbers.
enum FileType {
    FT_SPECIAL = -3,  ///< neither a directory nor a regular file: not to be opened
    FT_NO_FILE = -2,  ///< nothing is there, or a link that leads nowhere
    FT_NO_NAME = -1,
    FT_DIRECTORY = 0,
    FT_REGULAR = 1,
    FT_HTML = 4,
    FT_PDF = 5,
};

/// Classifies what a path leads to. HTML and PDF go by ".htm" and ".pdf" anywhere in the path, even for
/// directories.
FileType GetFileType(const std::string& path);

/// The type and the permissions of what a path leads to; nothing where that cannot be examined.
std::optional<mode_t> file_mode(const std::string& path);
