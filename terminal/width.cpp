// SPDX-License-Identifier: MIT
#include "terminal/width.h"

#include <utf8proc.h>

namespace terminal {

int character_width(char32_t character) {
    if (character < 0x300 || character == 0x00AD) {
        return 1;
    }
    if (character >= 0x4E00 && character <= 0x9FFF) {  // the most frequent wide ones
        return 2;
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
        case UTF8PROC_CATEGORY_LO:  // the vowels and finals of a Hangul syllable
            return character >= 0x1160 && character <= 0x11FF ? 0 : 1;
        default:
            return 1;
    }
}

}  // namespace terminal
