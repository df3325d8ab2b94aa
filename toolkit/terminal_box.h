// SPDX-License-Identifier: MIT
#pragma once

class QColor;
class QPainter;
class QRect;

/// Characters that the pane draws itself, so that they join across cells whatever the font: box drawing
/// (U+2500 to U+257F) and block elements (U+2580 to U+259F).
[[nodiscard]] constexpr bool is_box_character(char32_t character) {
    return character >= 0x2500 && character <= 0x259f;
}

/// Draws one of them into a cell. `line_width` is that of a light line.
void draw_box_character(QPainter& painter, const QRect& cell, char32_t character, int line_width,
                        const QColor& colour);
