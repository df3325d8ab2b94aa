// SPDX-License-Identifier: MIT
#include "shell/file_rename.h"

#include "shell/replacement.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>

int rename_to_new(const std::string& from, const std::string& to) {
    if (const int fault = path_fault(from) != 0 ? path_fault(from) : path_fault(to)) {
        return fault;
    }
    struct stat info {};
    if (lstat(to.c_str(), &info) == 0) {
        return EEXIST;
    }
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    // Some file systems, as those of servers, cannot promise that.
    const bool renamed = errno == EINVAL && rename(from.c_str(), to.c_str()) == 0;
    return renamed ? 0 : errno;
}
