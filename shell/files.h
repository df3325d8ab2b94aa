// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

// Reading and replacing the user's files. Paths are bytes, not UTF-8 by promise; one that holds a NUL is
// refused with EINVAL, for cut there it would name another file.

/// What a file holds, and 0; or an errno value that says why it could not be read.
struct FileContents {
    std::string text;
    int error = 0;
    /// What lets somebody else write it, such as "belongs to another user"; empty for a file of the user's or
    /// root's that nobody else may write to.
    std::string_view doubt = {};
};

/// Reads a whole regular file, through symbolic links. Never waits: a fifo or a device gives EINVAL, a
/// directory EISDIR. A file of more than `limit` bytes gives EFBIG and its first `limit` bytes.
[[nodiscard]] FileContents read_file(const std::string& path, std::size_t limit);

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

/// Replaces a file, or makes it, so that at any time the old or the new contents stand there whole. Returns
/// 0, or the errno value of what failed; then nothing has changed.
///
/// The contents go to a temporary file in the same directory, which takes the file's name at the end. So the
/// directory must be writable, and other hard links to the file keep the old contents. The file itself must
/// be writable too (else EACCES), and regular (else EISDIR, or EINVAL). Its permission bits are kept, its
/// owner and group where the system allows it; where the group is lost, nobody gains a right by that. Access
/// control lists and set-id bits are not carried over.
///
/// Links::follow replaces what a chain of symbolic links leads to, or makes it; a loop gives ELOOP. A link
/// that somebody else has put into a sticky directory that all may write to, such as /tmp, gives EACCES.
/// Links::replace puts the file in the place of a link at `path` itself.
[[nodiscard]] int save_file(const std::string& path, std::string_view contents,
                            const SaveOptions& options = {});

/// Removes what `save_file` has left in a directory where the program was killed: its temporary files that
/// are the user's and older than a day.
void remove_stale_temporary_files(const std::string& directory, std::time_t now);
