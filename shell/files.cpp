// SPDX-License-Identifier: MIT
#include "shell/files.h"

#include "terminal/descriptor.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t piece_size = std::size_t{64} * 1024;

/// Whether a group is the user's own, as many systems give one to each user: nobody else is in it.
bool is_private_group(gid_t group) {
    const passwd* user = getpwuid(geteuid());
    if (user == nullptr || user->pw_gid != group) {
        return false;
    }
    const struct group* entry = getgrgid(group);
    return entry != nullptr && std::string_view(entry->gr_name) == user->pw_name && *entry->gr_mem == nullptr;
}

std::string_view doubt_about(const struct stat& info) {
    if (info.st_uid != geteuid() && info.st_uid != 0) {
        return "belongs to another user";
    }
    const bool by_group = (info.st_mode & S_IWGRP) != 0 && !is_private_group(info.st_gid);
    return by_group || (info.st_mode & S_IWOTH) != 0 ? "can be written by other users" : "";
}

/// Reads to the end, or until there is more than the limit.
int read_all(int file, std::size_t limit, std::string& text) {
    std::array<char, piece_size> piece;
    for (;;) {
        const ssize_t size = read(file, piece.data(), piece.size());
        if (size == 0) {
            return 0;
        }
        if (size > 0) {
            text.append(piece.data(), static_cast<std::size_t>(size));
        } else if (errno != EINTR) {
            return errno;
        }
        if (text.size() > limit) {
            text.resize(limit);
            return EFBIG;
        }
    }
}

int write_all(int file, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t size = write(file, contents.data(), contents.size());
        if (size >= 0) {
            contents.remove_prefix(static_cast<std::size_t>(size));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

}  // namespace

FileContents read_file(const std::string& path, std::size_t limit) {
    if (const int error = path_fault(path); error != 0) {
        return {.error = error};
    }
    const terminal::Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat info {};
    if (file.get() < 0 || fstat(file.get(), &info) != 0) {
        return {.error = errno};
    }
    FileContents contents{.error = file_refusal(info.st_mode), .doubt = doubt_about(info)};
    if (contents.error == 0) {
        contents.error = read_all(file.get(), limit, contents.text);
    }
    return contents;
}

int save_file(const std::string& path, std::string_view contents, const SaveOptions& options) {
    Replacement made(path, options);
    if (made.error() != 0) {
        return made.error();
    }
    const int error = write_all(made.descriptor(), contents);
    return error == 0 ? made.commit() : error;
}
