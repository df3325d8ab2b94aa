// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// When a file was last written, as far as its directory entry tells; all 0 where there is none.
struct FileStamp {
    std::uint64_t inode = 0;
    std::int64_t modified = 0;  ///< nanoseconds
    std::int64_t size = 0;
    bool operator==(const FileStamp&) const = default;
};

[[nodiscard]] FileStamp stamp_of(const std::string& path);
