// SPDX-License-Identifier: MIT
#include "shell/replacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <memory>
#include <random>
#include <string_view>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

namespace {

constexpr int most_links = 40;  // as many as Linux follows
constexpr mode_t permission_bits = 0777;
constexpr mode_t private_mode = 0600;
constexpr std::string_view temporary_prefix = ".orvik-saving.";  // no other file of the tool begins so
constexpr std::string_view random_letters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::size_t random_length = 6;

/// The directory of a path with the "/" at its end; empty for a name in the current one.
std::string directory_part(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);  // npos + 1 is 0
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

/// The permissions of a file that could not keep its group. Members of the old group are now others, some
/// others are now the group: both get only what both had.
mode_t without_group(mode_t mode) {
    const mode_t common = (mode >> 3U) & mode & S_IRWXO;
    return (mode & S_IRWXU) | (common << 3U) | common;
}

/// A name in a directory that hardly any file has.
std::string temporary_name(const std::string& directory) {
    static thread_local std::random_device random;
    std::string name = fmt::format("{}{}", directory, temporary_prefix);
    for (std::size_t i = 0; i < random_length; ++i) {
        name += random_letters[random() % random_letters.size()];
    }
    return name;
}

/// Tries temporary names until `make` takes one: 0 and the name, or the errno value of what failed.
template <typename Make>
int with_new_name(const std::string& directory, std::string& name, Make make) {
    constexpr int most_tries = 100;
    int error = EEXIST;
    for (int tries = 0; error == EEXIST && tries < most_tries; ++tries) {
        name = temporary_name(directory);
        error = make(name);
    }
    if (error != 0) {
        name.clear();
    }
    return error;
}

/// A server may tell only when a file is closed that it has not taken everything.
bool reaches_server(int file) {
    const int copy = fcntl(file, F_DUPFD_CLOEXEC, 0);
    return copy >= 0 && close(copy) == 0;
}

bool is_temporary_name(std::string_view name) {
    return name.starts_with(temporary_prefix) && name.size() == temporary_prefix.size() + random_length &&
           name.find_first_not_of(random_letters, temporary_prefix.size()) == name.npos;
}

}  // namespace

int path_fault(const std::string& path) {
    if (path.empty()) {
        return ENOENT;
    }
    return path.find('\0') == std::string::npos ? 0 : EINVAL;
}

int file_refusal(mode_t type) {
    if (S_ISDIR(type)) {
        return EISDIR;
    }
    return S_ISREG(type) ? 0 : EINVAL;
}

Replacement::Replacement(std::string path, const SaveOptions& options)
    : place_(std::move(path)), options_(options) {
    error_ = find_place();
    if (error_ == 0) {
        error_ = open_file();
    }
}

Replacement::~Replacement() {
    if (!name_.empty()) {
        unlink(name_.c_str());
    }
}

/// Follows the links and looks at what stands in the place, and whether the user may replace it.
int Replacement::find_place() {
    if (const int error = path_fault(place_); error != 0) {
        return error;
    }
    if (options_.links == Links::follow) {
        if (const int error = follow_links(place_); error != 0) {
            return error;
        }
    }
    struct stat info {};
    if (lstat(place_.c_str(), &info) != 0) {
        return errno == ENOENT ? 0 : errno;
    }
    if (S_ISLNK(info.st_mode)) {  // a link's own rights say nothing
        return 0;
    }
    if (const int error = file_refusal(info.st_mode); error != 0) {
        return error;
    }
    if (faccessat(AT_FDCWD, place_.c_str(), W_OK, AT_EACCESS) != 0) {
        return errno;
    }
    old_ = info;
    return 0;
}

/// Opens a file without a name, or else one of a random name. The system takes the umask off a new file's
/// mode.
int Replacement::open_file() {
    const std::string directory = directory_part(place_);
    const mode_t mode = old_ || options_.exact_mode ? private_mode : options_.new_mode & permission_bits;
    constexpr int flags = O_RDWR | O_CLOEXEC;
    file_.reset(open(directory.empty() ? "." : directory.c_str(), O_TMPFILE | flags, mode));
    if (file_.get() >= 0) {
        return 0;
    }
    return with_new_name(directory, name_, [&](const std::string& name) {
        file_.reset(open(name.c_str(), O_CREAT | O_EXCL | flags, mode));
        return file_.get() >= 0 ? 0 : errno;
    });
}

/// Gives the new file its rights. The owner comes last: a file of somebody else could not be changed any
/// more.
int Replacement::set_rights() const {
    if (!old_ && !options_.exact_mode) {
        return 0;
    }
    mode_t mode = private_mode;
    if (old_) {
        const bool group_kept = fchown(descriptor(), static_cast<uid_t>(-1), old_->st_gid) == 0;
        mode = group_kept ? old_->st_mode : without_group(old_->st_mode);
    }
    if (fchmod(descriptor(), options_.exact_mode.value_or(mode & permission_bits)) != 0) {
        return errno;
    }
    if (old_) {  // only root gives files away: else it becomes the user's own
        [[maybe_unused]] const int ignored = fchown(descriptor(), old_->st_uid, static_cast<gid_t>(-1));
    }
    return 0;
}

int Replacement::give_name(const std::string& name) const {
    const std::string file = fmt::format("/proc/self/fd/{}", descriptor());
    return linkat(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

/// Only a name can take another's place, so a file without one gets one first, unless the place is free.
int Replacement::take_place() {
    if (name_.empty()) {
        const int error = old_ ? EEXIST : give_name(place_);
        if (error != EEXIST) {
            return error;
        }
        const int unnamed = with_new_name(directory_part(place_), name_,
                                          [this](const std::string& name) { return give_name(name); });
        if (unnamed != 0) {
            return unnamed;
        }
    }
    if (rename(name_.c_str(), place_.c_str()) != 0) {
        return errno;
    }
    name_.clear();
    return 0;
}

int Replacement::commit() {
    if (const int error = set_rights(); error != 0) {
        return error;
    }
    // Without this a crash of the system soon after could leave the new name on an empty file.
    const bool written =
        options_.durability == Durability::synced ? fsync(descriptor()) == 0 : reaches_server(descriptor());
    return written ? take_place() : errno;
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
