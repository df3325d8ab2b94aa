// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Gives a file or a directory another name, which nothing may have, on the same file system. 0, or the errno
/// value of what failed: EEXIST where something has the name already, be it a link that leads nowhere. Then
/// nothing has changed.
[[nodiscard]] int rename_to_new(const std::string& from, const std::string& to);
