// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/descriptor.h"

#include <ctime>
#include <optional>
#include <string>

#include <sys/stat.h>
#include <sys/types.h>

/// What to do with a symbolic link in the place of a file.
enum class Links { follow, replace };

/// When a replacement is done.
enum class Durability {
    synced,   ///< the new contents are on the disk
    renamed,  ///< the name stands for them: they outlive this program, but perhaps not a crash of the system,
              ///< after which the file may be the old one, the new one or, on some file systems, empty
};

struct SaveOptions {
    Links links = Links::follow;
    mode_t new_mode = 0666;            ///< of a file that was not there before; the umask is taken off
    std::optional<mode_t> exact_mode;  ///< of an old and of a new file alike, whatever the umask
    Durability durability = Durability::synced;
};

/// A new file that is to take the place of another one, whole, or of none: at any time the old or the new
/// contents stand there. Whoever makes it writes to its descriptor and then commits it; until that, and
/// whenever that fails, nothing has changed.
///
/// The file stands in the directory that it is for, without a name where the file system can do that: a
/// program that is killed leaves nothing behind then. So the directory must be writable, and other hard links
/// to the old file keep its contents. The old file must be writable too (else EACCES), and regular (else
/// EISDIR, or EINVAL). Its permission bits are kept, its owner and group where the system allows it; where
/// the group is lost, nobody gains a right by that. Access control lists and set-id bits are not carried
/// over.
///
/// Links::follow replaces what a chain of symbolic links leads to, or makes it; a loop gives ELOOP. A link
/// that somebody else has put into a sticky directory that all may write to, such as /tmp, gives EACCES.
/// Links::replace puts the file in the place of a link at `path` itself.
class Replacement {
  public:
    Replacement(std::string path, const SaveOptions& options);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// 0, or the errno value that says why there can be no new file.
    [[nodiscard]] int error() const { return error_; }
    /// Of the new file, for reading and writing.
    [[nodiscard]] int descriptor() const { return file_.get(); }
    /// The file that is to be replaced, when there is one.
    [[nodiscard]] const std::optional<struct stat>& old() const { return old_; }
    /// Puts the new file in place. 0, or the errno value of what failed.
    [[nodiscard]] int commit();

  private:
    [[nodiscard]] int find_place();
    [[nodiscard]] int open_file();
    [[nodiscard]] int set_rights() const;
    [[nodiscard]] int give_name(const std::string& name) const;
    [[nodiscard]] int take_place();

    std::string place_;
    SaveOptions options_;
    std::optional<struct stat> old_;
    std::string name_;  ///< of the new file until it takes its place; empty while it has none
    terminal::Descriptor file_{-1};
    int error_ = 0;
};

/// Removes what has been left in a directory where the program was killed: its temporary files that are the
/// user's and older than a day.
void remove_stale_temporary_files(const std::string& directory, std::time_t now);

/// 0 for a path that the system takes as it is. It would take an empty one for the current directory's when
/// names are put behind it, and cut one at a NUL.
[[nodiscard]] int path_fault(const std::string& path);
/// 0 for a regular file, else the errno value for what it is.
[[nodiscard]] int file_refusal(mode_t type);
