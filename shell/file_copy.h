// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/progress.h"

#include <string>

/// How a copy ended. Unless it is `COPY_OK`, nothing has changed.
enum CopyResult {
    COPY_OK = 0,
    COPY_NOT_OPENED = 1,  ///< the destination cannot be written
    COPY_FAILED = 2,      ///< anything else
    COPY_STOPPED = 3,     ///< it was asked to stop
};

/// Copies a regular file, through symbolic links, to a new file with its permission bits, from which the
/// umask is taken off, or in the place of a regular file, which keeps its own. The destination stands there
/// whole at any time, as `Replacement` says, the old one until the new one is complete: there must be room
/// for both. What is being copied onto itself is left alone (`COPY_FAILED`). Never waits for a fifo or a
/// device.
///
/// Blocks are shared where the file system can do that, else copied by the system; holes stay holes. The
/// progress, if there is one, counts the bytes. The copy is not forced to the disk: it outlives this program,
/// but perhaps not a crash of the system.
[[nodiscard]] CopyResult file_copy(const std::string& destination, const std::string& source,
                                   Progress* progress = nullptr);
