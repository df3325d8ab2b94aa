// SPDX-License-Identifier: MIT
#include "browsers/tree/listing.h"

#include "browsers/directory.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::string link_target(int directory, const char* name) {
    std::string target(4096, '\0');
    const ssize_t length = readlinkat(directory, name, target.data(), target.size());
    return target.substr(0, static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
}

/// What a name relative to a directory leads to; whether it leads anywhere.
bool glance_from(int directory, const char* name, bool is_link, FileGlance& glance) {
    struct stat status {};
    if (fstatat(directory, name, &status, 0) != 0) {
        return false;
    }
    glance = {.mode = status.st_mode, .size = status.st_size, .modified = status.st_mtime};
    if (S_ISDIR(status.st_mode) && faccessat(directory, name, R_OK, AT_EACCESS) != 0) {
        glance.read_error = errno;
    }
    if (is_link) {
        glance.link_target = link_target(directory, name);
    }
    return true;
}

/// The entries that are to be looked at, unsorted; the total is counted.
std::vector<std::pair<std::string, bool>> names_of(Directory& directory, bool dot_files, TreeListing& listing,
                                                   const Progress& progress) {
    std::vector<std::pair<std::string, bool>> names;
    while (names.size() < TreeListing::most_names && !progress.stopping()) {
        const char* const next = directory.next();
        if (next == nullptr) {
            break;
        }
        const std::string_view name = next;
        if (name == "." || name.starts_with("..")) {
            continue;
        }
        ++listing.total;
        if (dot_files || !name.starts_with('.')) {
            names.emplace_back(name, directory.at_link());
        }
    }
    listing.is_cut = names.size() == TreeListing::most_names;
    return names;
}

}  // namespace

bool glance_at(const std::string& path, FileGlance& glance) {
    struct stat status {};
    const bool is_link = lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
    return path.find('\0') == std::string::npos && glance_from(AT_FDCWD, path.c_str(), is_link, glance);
}

TreeListing list_for_tree(const std::string& path, TreeFilter filter, Progress& progress) {
    TreeListing listing;
    Directory directory(path);
    if (!directory.is_open()) {
        listing.result = TreeListing::Result::not_opened;
        listing.error = errno;
        return listing;
    }
    bool was_regular = false;  // a name that leads nowhere counts as the kind of the one before
    for (auto& [name, is_link] : names_of(directory, filter.dot_files, listing, progress)) {
        FileGlance glance;
        const bool is_there = glance_from(directory.descriptor(), name.c_str(), is_link, glance);
        was_regular = is_there ? S_ISREG(glance.mode) : was_regular;
        const bool shown = !(was_regular && filter.directories_only);
        listing.displayed += shown ? 1 : 0;
        if (shown && is_there) {
            listing.entries.push_back({std::move(name), std::move(glance)});
        }
        if (!progress.next()) {
            break;
        }
    }
    if (progress.stopping()) {
        listing.result = TreeListing::Result::stopped;
    }
    std::ranges::sort(listing.entries, {}, &TreeEntry::name);
    return listing;
}
