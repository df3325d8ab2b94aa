// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace terminal {

enum class CharacterSet : std::uint8_t {
    ascii,
    line_drawing,  ///< DEC Special Graphic
    supplemental,  ///< DEC Supplemental Graphic
    technical,     ///< DEC Technical
    latin1,        ///< the right half of ISO 8859-1
    british,
    dutch,
    finnish,
    french,
    french_canadian,
    german,
    italian,
    norwegian_danish,
    portuguese,
    spanish,
    swedish,
    swiss,
};

/// How big the set is that a sequence designates.
enum class SetSize : std::uint8_t { of_94, of_96 };
/// The national sets are there in national replacement mode only (DECNRCM).
enum class NationalSets : std::uint8_t { hidden, shown };

/// The set that the end of a designation (`ESC ( F`, `ESC ( I F`) names; nothing for those we do not have.
std::optional<CharacterSet> character_set(std::string_view code, SetSize size, NationalSets national);
/// The code that names a set.
std::string_view designation(CharacterSet set);
/// What the character 2/0 to 7/14 stands for in a set; in one of 94 it is 2/1 to 7/14.
char32_t translate(CharacterSet set, char character);

/// The sets G0 to G3 (ISO 2022). The right half of the code table is theirs only while UTF-8 is switched off.
struct CharacterSets {
    std::array<CharacterSet, 4> designated{};
    std::uint8_t invoked = 0;       ///< on the left, by SI, SO, LS2, LS3
    std::uint8_t right = 2;         ///< by LS1R, LS2R, LS3R
    std::uint8_t single_shift = 0;  ///< for the next character only, by SS2, SS3; 0 for none

    /// `ESC ( F` to `ESC + F` designate sets of 94 characters to G0 to G3, `ESC - F` to `ESC / F` those of 96
    /// to G1 to G3. `where` is the first intermediate, `code` what follows it; sets that we do not have
    /// change nothing.
    void designate(char where, std::string_view code, NationalSets national);

    [[nodiscard]] bool plain() const {
        return single_shift == 0 && designated[invoked] == CharacterSet::ascii;
    }
    /// Translates a character; a single shift is used up.
    char32_t take(char character) {
        const std::size_t index = single_shift != 0 ? single_shift : invoked;
        single_shift = 0;
        return translate(designated[index], character);
    }
    /// The same for one of the right half. Where ASCII is, which has no right half, ISO 8859-1 stands, and so
    /// it does at 10/0 and 15/15, which a set of 94 characters leaves free.
    [[nodiscard]] char32_t take_right(char32_t character) const {
        const CharacterSet set = designated[right];
        const bool left_free = character == 0xA0 || character == 0xFF;
        return set == CharacterSet::ascii || left_free ? character
                                                       : translate(set, static_cast<char>(character & 0x7F));
    }
    bool operator==(const CharacterSets&) const = default;
};

}  // namespace terminal
