// SPDX-License-Identifier: MIT
#include "shell/file_stamp.h"

#include <sys/stat.h>

FileStamp stamp_of(const std::string& path) {
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    struct stat info {};
    if (path.empty() || stat(path.c_str(), &info) != 0) {
        return {};
    }
    return {.inode = info.st_ino,
            .modified = info.st_mtim.tv_sec * nanoseconds + info.st_mtim.tv_nsec,
            .size = info.st_size};
}
