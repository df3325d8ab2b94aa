// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QPainterPath>
#include <QRect>

#include <cstddef>
#include <vector>

/// What a drawn character consists of, in device pixels from the cell's upper left corner: rectangles, or
/// else one path.
struct BoxShape {
    std::vector<QRect> rectangles;
    int opacity = 100;  ///< of the rectangles, percent
    QPainterPath path;
    int pen = 0;  ///< width of the path's line; 0: the path is filled
};

/// A cell in device pixels. Where a pixel is not a whole number of them, cells of one font differ in size.
struct BoxCell {
    int width;
    int height;
    int line;  ///< thickness of a light line

    bool operator==(const BoxCell&) const = default;
    [[nodiscard]] friend std::size_t qHash(const BoxCell& cell, std::size_t seed = 0) {
        return qHashMulti(seed, cell.width, cell.height, cell.line);
    }
    /// Where a line of that thickness begins so that it lies in the middle. Heavy lines are even when light
    /// ones are, so that all have one middle.
    [[nodiscard]] int middle_x(int thickness) const { return width / 2 - thickness / 2; }
    [[nodiscard]] int middle_y(int thickness) const { return height / 2 - thickness / 2; }
    [[nodiscard]] int heavy_line() const { return 2 * line + line % 2; }
};

/// Straight lines of box drawing (U+2500 to U+257F, but for arcs and diagonals), and the scan lines of DEC's
/// line drawing set (U+23BA to U+23BD).
BoxShape line_shape(const BoxCell& cell, char32_t character);
/// Block elements (U+2580 to U+259F), braille (U+2800 to U+28FF) and sextants (U+1FB00 to U+1FB3B).
BoxShape block_shape(const BoxCell& cell, char32_t character);
/// Arcs (U+256D to U+2570), diagonals (U+2571 to U+2573) and the arrows of status lines in the private use
/// area (U+E0B0 to U+E0B3).
BoxShape curve_shape(const BoxCell& cell, char32_t character);
