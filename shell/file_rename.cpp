// SPDX-License-Identifier: MIT
#include "shell/file_rename.h"

#include "shell/replacement.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

RenameResult rename_to_new(const std::string& from, const std::string& to) {
    if (path_fault(from) != 0 || path_fault(to) != 0) {
        return RenameResult::failed;
    }
    struct stat info {};
    if (lstat(to.c_str(), &info) == 0) {
        return RenameResult::exists;
    }
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return RenameResult::renamed;
    }
    if (errno == EEXIST) {  // it has come in between
        return RenameResult::exists;
    }
    // Some file systems, as those of servers, cannot promise that.
    const bool renamed = errno == EINVAL && rename(from.c_str(), to.c_str()) == 0;
    return renamed ? RenameResult::renamed : RenameResult::failed;
}
