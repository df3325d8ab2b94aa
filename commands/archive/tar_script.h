// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <cstdint>
#include <string>
#include <vector>

// The scripts that pack and unpack with tar.

/// What is packed: an absolute path.
struct PackedFile {
    std::string path;
    bool is_directory = false;
};

/// The names in the archive.
enum class PackedNames : std::uint8_t {
    relative,  ///< to each file's own directory; of a directory, what is in it
    absolute,
};

/// Packs files into an archive, in a directory where that is not empty. tar sees every name as it is: neither
/// for an option, nor for a host's, nor with a backslash in it for another one.
std::string pack_script(const std::string& archive, const std::string& directory,
                        const std::vector<PackedFile>& files, PackedNames names, ShellFamily shell);

/// Unpacks an archive, in a directory where that is not empty.
std::string unpack_script(const std::string& archive, const std::string& directory, ShellFamily shell);
