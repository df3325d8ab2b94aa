// SPDX-License-Identifier: MIT
#pragma once

#include "shell/send.h"
#include "toolkit/notify.h"

#include <string>
#include <string_view>

#include <sys/types.h>

// Scripts that a shell is given instead of a long line.

/// Writes a script with exactly that mode, whole or not at all. In the place of a link the script is put, not
/// where that leads to; a file of somebody else's is left alone. Whether it was written.
[[nodiscard]] bool save_script(const std::string& path, std::string_view text, mode_t mode);

/// A file name as a word of the script below.
std::string in_script(std::string_view name);

/// Writes the script ".orvik-script" in a directory and types its path into the user's shell. It begins with
/// "#" and names no interpreter: a csh reads it itself, all others give it to sh.
[[nodiscard]] Message run_script(const std::string& directory, const std::string& text, Remember remember);
