// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A directory as a menu of its entries. Knows no window.

/// What is left out of a directory menu: bits of "Hide" of "Edit Menu Setup".
enum HideMask : unsigned { hide_nothing = 0, hide_dot_files = 1, hide_directories = 2 };

struct DirectoryMenu {
    enum class Outcome : std::uint8_t {
        read,
        illegal,   ///< no directory, or one that its owner may not read
        too_many,  ///< 200 entries or more would be shown
    };
    struct Entry {
        std::string label;  ///< the name and its mark: "/" directory, "@" symbolic link, "*" executable
        std::string path;
    };

    Outcome outcome = Outcome::read;
    std::vector<Entry> entries;  ///< sorted by bytes
    int total = 0;               ///< of entries, hidden ones included
};

DirectoryMenu read_directory_menu(const std::string& path, unsigned hide);
