// SPDX-License-Identifier: MIT
#include "terminal/width.h"

#include <utf8proc.h>

namespace terminal {

int look_up_character_width(char32_t character) {
    if (character >= 0x1160 && character <= 0x11FF) {  // vowels and finals of a Hangul syllable
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
