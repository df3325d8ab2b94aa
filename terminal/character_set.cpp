// SPDX-License-Identifier: MIT
#include "terminal/character_set.h"

namespace terminal {

namespace {

/// DEC Special Graphic from 5/15 on (VT220 manual, table 2-4).
constexpr std::array<char32_t, 32> special_graphics = {
    U' ', U'◆', U'▒', U'␉', U'␌', U'␍', U'␊', U'°', U'±', U'␤', U'␋', U'┘', U'┐', U'┌', U'└', U'┼',
    U'⎺', U'⎻', U'─', U'⎼', U'⎽', U'├', U'┤', U'┴', U'┬', U'│', U'≤', U'≥', U'π', U'≠', U'£', U'·',
};
constexpr char special_graphics_begin = 0x5F;

}  // namespace

CharacterSet character_set(char final) {
    switch (final) {
        case '0':
        case '2':
            return CharacterSet::line_drawing;
        case 'A':
            return CharacterSet::british;
        default:
            return CharacterSet::ascii;
    }
}

char32_t translate(CharacterSet set, char character) {
    if (set == CharacterSet::british && character == '#') {
        return U'£';
    }
    if (set == CharacterSet::line_drawing && character >= special_graphics_begin) {
        return special_graphics[static_cast<std::size_t>(character - special_graphics_begin)];
    }
    return static_cast<char32_t>(character);
}

}  // namespace terminal
