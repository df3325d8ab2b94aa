// SPDX-License-Identifier: MIT
#include "browsers/directory.h"

#include <utility>

#include <fcntl.h>

namespace {

std::optional<struct stat> status_at(int directory, const std::string& name, int flags) {
    struct stat status {};
    const bool known = fstatat(directory, name.c_str(), &status, flags) == 0;
    return known ? std::optional(status) : std::nullopt;
}

std::optional<mode_t> mode_at(int directory, const std::string& name, int flags) {
    const std::optional<struct stat> status = status_at(directory, name, flags);
    return status ? std::optional(status->st_mode) : std::nullopt;
}

}  // namespace

Directory::Directory(const std::string& path)
    : stream_(path.find('\0') == std::string::npos ? opendir(path.c_str()) : nullptr) {}

Directory::~Directory() { (void)close(); }

const char* Directory::next() {
    entry_ = readdir(stream_);
    return entry_ == nullptr ? nullptr : entry_->d_name;
}

bool Directory::at_link() const {
    if (entry_->d_type != DT_UNKNOWN) {
        return entry_->d_type == DT_LNK;
    }
    const std::optional<mode_t> mode = link_mode_of(entry_->d_name);  // this file system does not tell
    return mode && S_ISLNK(*mode);
}

std::optional<struct stat> Directory::status_of(const std::string& name) const {
    return status_at(dirfd(stream_), name, 0);
}

std::optional<mode_t> Directory::mode_of(const std::string& name) const {
    return mode_at(dirfd(stream_), name, 0);
}

std::optional<mode_t> Directory::link_mode_of(const std::string& name) const {
    return mode_at(dirfd(stream_), name, AT_SYMLINK_NOFOLLOW);
}

std::optional<mode_t> Directory::mode() const {
    struct stat status {};
    return fstat(dirfd(stream_), &status) == 0 ? std::optional(status.st_mode) : std::nullopt;
}

bool Directory::close() {
    DIR* stream = std::exchange(stream_, nullptr);
    return stream == nullptr || closedir(stream) == 0;
}

bool is_dots(std::string_view name) { return name == "." || name == ".."; }
