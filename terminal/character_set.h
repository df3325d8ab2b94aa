// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace terminal {

enum class CharacterSet : std::uint8_t { ascii, british, line_drawing };

/// The set that a final byte of `ESC ( F` designates; ASCII for those we do not have.
CharacterSet character_set(char final);
/// What the character 2/0 to 7/14 stands for in a set.
char32_t translate(CharacterSet set, char character);

/// The sets G0 to G3 (ISO 2022). Only the left half of the code table is theirs; the right half is UTF-8.
struct CharacterSets {
    std::array<CharacterSet, 4> designated{};
    std::uint8_t invoked = 0;       ///< by SI, SO, LS2, LS3
    std::uint8_t single_shift = 0;  ///< for the next character only, by SS2, SS3; 0 for none

    [[nodiscard]] bool plain() const {
        return single_shift == 0 && designated[invoked] == CharacterSet::ascii;
    }
    /// Translates a character; a single shift is used up.
    char32_t take(char character) {
        const std::size_t index = single_shift != 0 ? single_shift : invoked;
        single_shift = 0;
        return translate(designated[index], character);
    }
    bool operator==(const CharacterSets&) const = default;
};

}  // namespace terminal
