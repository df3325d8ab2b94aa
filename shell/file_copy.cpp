// SPDX-License-Identifier: MIT
#include "shell/file_copy.h"

#include "shell/replacement.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <vector>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr off_t to_the_end = std::numeric_limits<off_t>::max();

/// Whether a call failed because this pair of files cannot be copied so, and not by what it met.
bool is_unsupported(int error) {
    return error == EXDEV || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

/// Copies what a file holds to another, empty one.
class Contents {
  public:
    Contents(int source, int target, Progress* progress)
        : source_(source), target_(target), progress_(progress) {}

    /// Whether all of it was copied.
    [[nodiscard]] bool copy() {
        struct stat info {};
        if (fstat(source_, &info) != 0) {
            return false;
        }
        // Files that the system makes up when they are read tell no size.
        const off_t size = info.st_size > 0 ? info.st_size : to_the_end;
        if (size != to_the_end && ioctl(target_, FICLONE, source_) == 0) {
            return count(size);
        }
        const bool copied = size == to_the_end ? copy_range(0, size) : copy_data(size);
        return copied && ftruncate(target_, end_) == 0;
    }
    [[nodiscard]] bool stopped() const { return progress_ != nullptr && progress_->stopping(); }

  private:
    /// Whether to go on.
    [[nodiscard]] bool count(off_t bytes) const { return progress_ == nullptr || progress_->next(bytes); }

    /// Copies what lies between the holes of the first `size` bytes.
    [[nodiscard]] bool copy_data(off_t size) {
        for (off_t at = 0; at < size;) {
            off_t data = lseek(source_, at, SEEK_DATA);
            off_t hole = data < 0 ? -1 : lseek(source_, data, SEEK_HOLE);
            if (data < 0 && errno == ENXIO) {  // a hole up to the end
                data = hole = end_ = size;
            } else if (hole < 0) {  // nothing is known of holes here
                data = at;
                hole = size;
            }
            if (!count(std::min(data, size) - at) || !copy_range(data, std::min(hole, size))) {
                return false;
            }
            if (data == hole || end_ < std::min(hole, size)) {  // it was cut short meanwhile
                return true;
            }
            at = hole;
        }
        return true;
    }

    /// Copies from one place to another, or to the end of the file when that comes first; `end_` tells.
    [[nodiscard]] bool copy_range(off_t from, off_t to) {
        for (end_ = from; end_ < to;) {
            const ssize_t size = copy_some(static_cast<std::size_t>(std::min(to - end_, piece)));
            if (size < 0) {
                return false;
            }
            if (size == 0) {
                return true;
            }
            end_ += size;
            if (!count(size)) {
                return false;
            }
        }
        return true;
    }

    /// The bytes copied to and from `end_`: 0 at the end of the file, less when it failed.
    [[nodiscard]] ssize_t copy_some(std::size_t most) {
        if (in_kernel_) {
            off_t from = end_;
            off_t to = end_;
            const ssize_t size = copy_file_range(source_, &from, target_, &to, most, 0);
            if (size > 0 || (size < 0 && !is_unsupported(errno))) {
                return size;
            }
            in_kernel_ = false;  // also at the end, which is what a made-up file claims to be at
        }
        buffer_.resize(buffer_size);
        const ssize_t size = pread(source_, buffer_.data(), std::min(most, buffer_size), end_);
        for (ssize_t written = 0; written < size;) {
            const ssize_t more = pwrite(target_, buffer_.data() + written,
                                        static_cast<std::size_t>(size - written), end_ + written);
            if (more <= 0) {
                return -1;
            }
            written += more;
        }
        return size;
    }

    static constexpr off_t piece = off_t{16} * 1024 * 1024;  ///< after which it looks whether to stop
    static constexpr std::size_t buffer_size = std::size_t{256} * 1024;

    int source_;
    int target_;
    Progress* progress_;
    off_t end_ = 0;  ///< of what has been copied
    bool in_kernel_ = true;
    std::vector<char> buffer_;
};

bool is_same_file(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

}  // namespace

CopyResult file_copy(const std::string& destination, const std::string& source, Progress* progress) {
    struct stat info {};
    if (path_fault(source) != 0 || stat(source.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return COPY_FAILED;
    }
    Replacement made(destination, {.new_mode = info.st_mode, .durability = Durability::renamed});
    if (made.error() != 0) {
        return COPY_NOT_OPENED;
    }
    const terminal::Descriptor read_from(open(source.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    // It may be another file by now.
    if (read_from.get() < 0 || fstat(read_from.get(), &info) != 0 || !S_ISREG(info.st_mode) ||
        (made.old() && is_same_file(*made.old(), info))) {
        return COPY_FAILED;
    }
    Contents contents(read_from.get(), made.descriptor(), progress);
    const bool copied = contents.copy();
    if (contents.stopped()) {
        return COPY_STOPPED;
    }
    return copied && made.commit() == 0 ? COPY_OK : COPY_FAILED;
}
