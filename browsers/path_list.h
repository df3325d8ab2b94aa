// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/progress.h"

#include <string>
#include <vector>

// The text of a file list: the paths of listed files, one a line. Nothing here knows a window.

/// Which files are taken, in the order of "Select".
enum class FileKinds { all, regular, directories };

struct PathList {
    std::string text;
    int left_out = 0;  ///< names that hold a line feed: they would pass for two
};

/// The paths of names in a directory, as they are; what cannot be examined is left out. Those that are
/// neither regular files nor directories are taken for any kind.
PathList path_list(const std::string& directory, const std::vector<std::string>& names, FileKinds kinds,
                   Progress* progress = nullptr);
