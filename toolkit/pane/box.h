// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/box_shape.h"

#include <QHash>
#include <QImage>
#include <QRgb>

#include <utility>

class QPainter;

/// Characters that the pane draws itself, so that they join across cells whatever the font: box drawing and
/// block elements, braille, DEC's scan lines, sextants, and the arrows of status lines.
[[nodiscard]] constexpr bool is_box_character(char32_t character) {
    return character >= 0x23ba &&
           (character <= 0x23bd || (character >= 0x2500 && character <= 0x259f) ||
            (character >= 0x2800 && character <= 0x28ff) || (character >= 0xe0b0 && character <= 0xe0b3) ||
            (character >= 0x1fb00 && character <= 0x1fb3b));
}

/// Draws them. What a character looks like in a cell of a size is worked out once.
class BoxGlyphs {
  public:
    /// `cell` in the painter's coordinates. Edges are rounded to device pixels, as those of the next cell.
    void draw(QPainter& painter, const QRect& cell, char32_t character, QRgb colour);

  private:
    using ShapeKey = std::pair<char32_t, BoxCell>;

    const BoxShape& shape(const ShapeKey& key);
    const QImage& picture(const ShapeKey& key, QRgb colour);

    QHash<ShapeKey, BoxShape> shapes_;
    QHash<std::pair<ShapeKey, QRgb>, QImage> pictures_;  ///< of shapes that are paths
};
