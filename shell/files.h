// SPDX-License-Identifier: MIT
#pragma once

#include "shell/replacement.h"

#include <cstddef>
#include <string>
#include <string_view>

// Reading and replacing the user's files. Paths are bytes, not UTF-8 by promise; one that holds a NUL is
// refused with EINVAL, for cut there it would name another file.

/// What a file holds, and 0; or an errno value that says why it could not be read.
struct FileContents {
    std::string text;
    int error = 0;
    /// What lets somebody else write it, such as "belongs to another user"; empty for a file of the user's or
    /// root's that nobody else may write to.
    std::string_view doubt = {};
};

/// Reads a whole regular file, through symbolic links. Never waits: a fifo or a device gives EINVAL, a
/// directory EISDIR. A file of more than `limit` bytes gives EFBIG and its first `limit` bytes.
[[nodiscard]] FileContents read_file(const std::string& path, std::size_t limit);

/// Replaces a file, or makes it, as `Replacement` says. Returns 0, or the errno value of what failed; then
/// nothing has changed.
[[nodiscard]] int save_file(const std::string& path, std::string_view contents,
                            const SaveOptions& options = {});
