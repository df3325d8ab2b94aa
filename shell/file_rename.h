// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// How giving a file another name ended. Unless it is `renamed`, nothing has changed.
enum class RenameResult : std::uint8_t {
    renamed,
    exists,  ///< something has the new name already, be it a link that leads nowhere
    failed,
};

/// Gives a file or a directory another name, which nothing may have, on the same file system.
[[nodiscard]] RenameResult rename_to_new(const std::string& from, const std::string& to);
