// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/progress.h"

#include <string>
#include <vector>

#include <sys/types.h>

// Reading a directory for the tree. Nothing here knows a window.

/// What a file was when it was looked at: what the tree draws and tells of it.
struct FileGlance {
    mode_t mode = 0;
    off_t size = 0;
    time_t modified = 0;
    int read_error = 0;       ///< errno of a directory that cannot be read
    std::string link_target;  ///< of a symbolic link; the rest is what it leads to
};

/// Looks at a path; whether there is anything.
[[nodiscard]] bool glance_at(const std::string& path, FileGlance& glance);

struct TreeEntry {
    std::string name;
    FileGlance glance;
};

/// Which entries the tree shows.
struct TreeFilter {
    bool dot_files = false;
    bool directories_only = false;
};

/// A directory's entries as the tree shows them.
struct TreeListing {
    static constexpr int most_names = 10'000;

    enum class Result : unsigned char { read, not_opened, stopped };

    Result result = Result::read;
    int error = 0;                   ///< errno of what could not be opened
    std::vector<TreeEntry> entries;  ///< to be shown, sorted by bytes
    int total = 0;                   ///< of all entries but "." and those that begin with ".."
    int displayed = 0;               ///< what counts as shown: entries that lead nowhere do, too
    bool is_cut = false;             ///< there may be more names than were read
};

/// Reads a directory. The progress counts the names examined.
TreeListing list_for_tree(const std::string& directory, TreeFilter filter, Progress& progress);
