// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// The picture before a row of a list.
enum class Glyph : std::uint8_t {
    none,
    arrow,      ///< leads up a directory
    directory,  ///< a folder
    document,   ///< a file
};

struct ListRow {
    std::string text;
    Glyph glyph = Glyph::none;

    bool operator==(const ListRow&) const = default;
};
