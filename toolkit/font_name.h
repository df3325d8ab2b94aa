// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// What a font's name asks for; empty and zero where it says nothing.
struct FontDescription {
    std::string family;
    double points = 0;
    int pixels = 0;       ///< the em square's height
    int cell_pixels = 0;  ///< the height of a character cell
    bool bold = false;
    bool italic = false;
    bool operator==(const FontDescription&) const = default;
};

/// Reads the forms of a font name that X programs know: an X logical font description (XLFD, 14 fields), a
/// cell name as "9x15bold", or fontconfig's "Family-Size:property...". "fixed" and "monospace" name no
/// family.
FontDescription parse_font_name(std::string_view name);
