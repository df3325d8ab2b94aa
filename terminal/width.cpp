// SPDX-License-Identifier: MIT
#include "terminal/width.h"

#include <utf8proc.h>

namespace terminal {

int character_width(char32_t character) {
    // The most frequent ones without a look into the tables: Latin, Greek, Cyrillic, lines and blocks, Han.
    const auto within = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    if (character < 0x300 || within(0x370, 0x482) || within(0x2500, 0x259F)) {
        return 1;
    }
    if (within(0x4E00, 0x9FFF)) {
        return 2;
    }
    if (within(0x1160, 0x11FF)) {  // vowels and finals of a Hangul syllable
        return 0;
    }
    const auto code = static_cast<utf8proc_int32_t>(character);
    const int width = utf8proc_charwidth(code);
    if (width > 0) {
        return width;
    }
    switch (utf8proc_category(code)) {
        case UTF8PROC_CATEGORY_MN:
        case UTF8PROC_CATEGORY_ME:
        case UTF8PROC_CATEGORY_CF:
            return 0;
        default:
            return 1;
    }
}

}  // namespace terminal
