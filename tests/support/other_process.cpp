// SPDX-License-Identifier: MIT
#include "tests/support/other_process.h"

#include <algorithm>
#include <fstream>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

bool write_to(const char* path, const std::string& text) {
    return static_cast<bool>(std::ofstream(path) << text << std::flush);
}

/// Gives the process mounts of its own: as root at once, else as the root of a user namespace.
bool have_own_mounts() {
    const std::string user = "0 " + std::to_string(geteuid()) + " 1";
    const std::string group = "0 " + std::to_string(getegid()) + " 1";
    const bool unshared =
        unshare(CLONE_NEWNS) == 0 ||
        (unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && write_to("/proc/self/setgroups", "deny") &&
         write_to("/proc/self/uid_map", user) && write_to("/proc/self/gid_map", group));
    return unshared && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

}  // namespace

bool become_ordinary() { return geteuid() != 0 || (setgid(nobody) == 0 && setuid(nobody) == 0); }

bool mount_small_disk(const std::filesystem::path& directory, const std::string& size) {
    return have_own_mounts() && mount("none", directory.c_str(), "tmpfs", 0, ("size=" + size).c_str()) == 0;
}

std::vector<std::string> listing(const std::filesystem::path& directory) {
    std::vector<std::string> names;
    for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator(directory)) {
        names.push_back(
            entry.path().filename().string() +
            (entry.is_symlink() ? " -> " + std::filesystem::read_symlink(entry.path()).string() : ""));
    }
    std::ranges::sort(names);
    return names;
}
