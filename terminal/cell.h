// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <vector>

namespace terminal {

using StyleId = std::uint16_t;  ///< index of an interned `Style`; 0 is the plain one
using LinkId = std::uint16_t;   ///< index of an OSC 8 link; 0 is no link

/// One character position of a row, 8 bytes. `glyph` is 0 where nothing was written, else a code point, or
/// with `cluster` set the number of a cluster (a base with combining characters) kept by the terminal.
/// A wide character takes two cells: the first has `wide`, the second `wide_tail` and no character of its
/// own.
struct Cell {
    static constexpr std::uint32_t character_mask = 0x1fffff;
    static constexpr std::uint32_t cluster = 1U << 31;
    static constexpr std::uint32_t wide = 1U << 30;
    static constexpr std::uint32_t wide_tail = 1U << 29;
    static constexpr std::uint32_t guarded = 1U << 28;  ///< against selective erase (DECSCA)
    static constexpr std::uint32_t area_guarded = 1U
                                                  << 27;  ///< in a guarded area (SPA, EPA); lost on scrolling

    std::uint32_t glyph = 0;
    StyleId style = 0;
    LinkId link = 0;

    [[nodiscard]] std::uint32_t character() const { return glyph & character_mask; }
    [[nodiscard]] bool is_cluster() const { return (glyph & cluster) != 0; }
    [[nodiscard]] bool is_wide() const { return (glyph & wide) != 0; }
    [[nodiscard]] bool is_wide_tail() const { return (glyph & wide_tail) != 0; }
    bool operator==(const Cell&) const = default;
};
static_assert(sizeof(Cell) == 8);

/// Number of a row since the terminal began: rows keep their number while they scroll up and into the
/// scrollback, so that a position in the text stays the same. Only a resize renumbers.
using RowId = std::int64_t;

/// A position in the text. `column` may be one past the row's last cell.
struct Position {
    RowId row = 0;
    int column = 0;
    auto operator<=>(const Position&) const = default;
};

/// From `begin` up to, not including, `end`.
struct Range {
    Position begin;
    Position end;
    [[nodiscard]] bool empty() const { return begin >= end; }
    bool operator==(const Range&) const = default;
};

/// Which styles, links and clusters cells have, while those out of use are looked for.
struct UsedIds {
    std::vector<bool> styles;
    std::vector<bool> links;
    std::vector<bool> clusters;

    void add(const Cell& cell) {
        styles[cell.style] = true;
        links[cell.link] = true;
        if (cell.is_cluster()) {
            clusters[cell.character()] = true;
        }
    }
};

}  // namespace terminal
