// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace terminal {

/// Widths of the most frequent characters by the half page of 128: 0 where they are to be looked up one by
/// one.
struct HalfPageWidths {
    std::array<std::uint8_t, 0x10000 / 128> widths{};

    constexpr HalfPageWidths() {
        fill(0x0000, 0x02FF, 1);  // Latin
        fill(0x0380, 0x047F, 1);  // Greek, Cyrillic
        fill(0x2500, 0x257F, 1);  // box drawing
        fill(0x4E00, 0x9FFF, 2);  // Han
        fill(0xAC00, 0xD77F, 2);  // Hangul
    }
    constexpr void fill(std::size_t first, std::size_t last, std::uint8_t width) {
        for (std::size_t page = first / 128; page <= last / 128; ++page) {
            widths[page] = width;
        }
    }
};
inline constexpr HalfPageWidths half_page_widths;

/// The width of any character, from Unicode's tables.
int look_up_character_width(char32_t character);

/// Cells a character takes: 0 for what joins the character before it (combining marks, joiners, selectors),
/// 2 for East Asian wide and emoji characters. Counted by single characters, as wcwidth(3) does and programs
/// therefore expect, also within sequences that a font draws as one emoji.
inline int character_width(char32_t character) {
    const int width = character < 0x10000 ? half_page_widths.widths[character / 128] : 0;
    return width != 0 ? width : look_up_character_width(character);
}

}  // namespace terminal
