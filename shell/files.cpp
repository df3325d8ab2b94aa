// SPDX-License-Identifier: MIT
#include "shell/files.h"

#include "terminal/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t piece_size = std::size_t{64} * 1024;
constexpr int most_links = 40;  // as many as Linux follows
constexpr mode_t permission_bits = 0777;
constexpr std::string_view temporary_prefix = ".orvik-saving.";  // no other file of the tool begins so
constexpr std::string_view random_part = "XXXXXX";               // as mkostemp() wants it

/// 0 for a regular file, else the errno value for what it is.
int refusal(mode_t type) {
    if (S_ISDIR(type)) {
        return EISDIR;
    }
    return S_ISREG(type) ? 0 : EINVAL;
}

/// 0 for a path that the system takes as it is. It would take an empty one for the current directory's when
/// names are put behind it, and cut one at a NUL.
int path_fault(const std::string& path) {
    if (path.empty()) {
        return ENOENT;
    }
    return path.find('\0') == std::string::npos ? 0 : EINVAL;
}

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

/// The directory of a path with the "/" at its end; empty for a name in the current one.
std::string directory_part(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);  // npos + 1 is 0
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

/// 0 for a link that may be followed, by the rule of Linux's fs.protected_symlinks, which reading a link
/// passes by: in a sticky directory that everybody may write to, only the user's own links and those of the
/// directory's owner lead where they should.
int link_refusal(const std::string& path, const struct stat& link) {
    const std::string directory = directory_part(path);
    struct stat around {};
    if (stat(directory.empty() ? "." : directory.c_str(), &around) != 0) {
        return errno;
    }
    constexpr mode_t shared = S_ISVTX | S_IWOTH;
    const bool trusted =
        (around.st_mode & shared) != shared || link.st_uid == geteuid() || link.st_uid == around.st_uid;
    return trusted ? 0 : EACCES;
}

/// Takes a path to the end of its chain of symbolic links, whether anything stands there or not. The links
/// are read one by one, since realpath() fails where the last one dangles. Each is looked at before it is
/// read: what is trusted then, nobody else can exchange.
int follow_links(std::string& path) {
    std::array<char, PATH_MAX> target;
    for (int step = 0; step <= most_links; ++step) {
        struct stat info {};
        if (lstat(path.c_str(), &info) != 0) {
            return errno == ENOENT ? 0 : errno;
        }
        if (!S_ISLNK(info.st_mode)) {
            return 0;
        }
        if (const int error = link_refusal(path, info); error != 0) {
            return error;
        }
        const ssize_t size = readlink(path.c_str(), target.data(), target.size());
        if (size < 0) {
            return errno;
        }
        const std::string_view link(target.data(), static_cast<std::size_t>(size));
        if (link.size() == target.size()) {
            return ENAMETOOLONG;
        }
        path = link.starts_with('/') ? std::string(link) : directory_part(path).append(link);
    }
    return ELOOP;
}

/// The file to be replaced, when there is one.
using OldFile = std::optional<struct stat>;

/// Looks at what stands in the place of the new file and whether the user may replace it.
int examine(const std::string& path, OldFile& old) {
    struct stat info {};
    if (lstat(path.c_str(), &info) != 0) {
        return errno == ENOENT ? 0 : errno;
    }
    if (S_ISLNK(info.st_mode)) {  // a link's own rights say nothing
        return 0;
    }
    if (const int error = refusal(info.st_mode); error != 0) {
        return error;
    }
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) {
        return errno;
    }
    old = info;
    return 0;
}

/// POSIX tells the umask only in exchange for another one. Until it is put back, a strict one holds.
mode_t current_umask() {
    const mode_t mask = umask(permission_bits & ~mode_t{S_IRWXU});
    umask(mask);
    return mask;
}

/// The permissions of a file that could not keep its group. Members of the old group are now others, some
/// others are now the group: both get only what both had.
mode_t without_group(mode_t mode) {
    const mode_t common = (mode >> 3U) & mode & S_IRWXO;
    return (mode & S_IRWXU) | (common << 3U) | common;
}

/// A file of a random name that only the user may read; removed at the end, unless it has taken another name.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& directory)
        : name_(fmt::format("{}{}{}", directory, temporary_prefix, random_part)),
          file_(mkostemp(name_.data(), O_CLOEXEC)) {}
    ~TemporaryFile() {
        if (file_.get() >= 0 && !name_.empty()) {
            unlink(name_.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    [[nodiscard]] int descriptor() const { return file_.get(); }
    [[nodiscard]] int rename_to(const std::string& path) {
        if (rename(name_.c_str(), path.c_str()) != 0) {
            return errno;
        }
        name_.clear();
        return 0;
    }

  private:
    std::string name_;
    terminal::Descriptor file_;
};

/// Gives the new file its rights. The owner comes last: a file of somebody else could not be changed any
/// more.
int set_rights(int file, const OldFile& old, const SaveOptions& options) {
    mode_t mode = options.new_mode & ~current_umask();
    if (old) {
        const bool group_kept = fchown(file, static_cast<uid_t>(-1), old->st_gid) == 0;
        mode = group_kept ? old->st_mode : without_group(old->st_mode);
    }
    if (fchmod(file, options.exact_mode.value_or(mode & permission_bits)) != 0) {
        return errno;
    }
    if (old) {  // only root gives files away: else it becomes the user's own
        [[maybe_unused]] const int ignored = fchown(file, old->st_uid, static_cast<gid_t>(-1));
    }
    return 0;
}

int write_and_rename(TemporaryFile& made, const std::string& path, std::string_view contents,
                     const OldFile& old, const SaveOptions& options) {
    if (const int error = write_all(made.descriptor(), contents); error != 0) {
        return error;
    }
    if (const int error = set_rights(made.descriptor(), old, options); error != 0) {
        return error;
    }
    // Without this a crash of the system soon after could leave the new name on an empty file.
    if (options.durability == Durability::synced && fsync(made.descriptor()) != 0) {
        return errno;
    }
    return made.rename_to(path);
}

bool is_temporary_name(std::string_view name) {
    const auto is_random = [](char c) {  // what mkostemp() takes in glibc, musl and the BSDs
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    return name.starts_with(temporary_prefix) &&
           name.size() == temporary_prefix.size() + random_part.size() &&
           std::ranges::all_of(name.substr(temporary_prefix.size()), is_random);
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
    FileContents contents{.error = refusal(info.st_mode), .doubt = doubt_about(info)};
    if (contents.error == 0) {
        contents.error = read_all(file.get(), limit, contents.text);
    }
    return contents;
}

int save_file(const std::string& path, std::string_view contents, const SaveOptions& options) {
    if (const int error = path_fault(path); error != 0) {
        return error;
    }
    std::string place = path;
    if (options.links == Links::follow) {
        if (const int error = follow_links(place); error != 0) {
            return error;
        }
    }
    OldFile old;
    if (const int error = examine(place, old); error != 0) {
        return error;
    }
    TemporaryFile made(directory_part(place));
    if (made.descriptor() < 0) {
        return errno;
    }
    return write_and_rename(made, place, contents, old, options);
}

void remove_stale_temporary_files(const std::string& directory, std::time_t now) {
    constexpr std::time_t day = std::time_t{24} * 60 * 60;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(directory.c_str()), closedir);
    if (!stream) {
        return;
    }
    while (const dirent* entry = readdir(stream.get())) {
        struct stat info {};
        const int at = dirfd(stream.get());
        if (is_temporary_name(entry->d_name) && fstatat(at, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(info.st_mode) && info.st_uid == geteuid() && now - info.st_mtime > day) {
            unlinkat(at, entry->d_name, 0);
        }
    }
}
