// SPDX-License-Identifier: MIT
#include "toolkit/pane/box_shape.h"

#include <algorithm>
#include <array>

namespace {

constexpr int eighths = 8;

/// Parts of the cell as a grid of columns and rows; no part vanishes in a small cell.
QRect part_of(const BoxCell& cell, const QRect& part, QSize grid) {
    const auto at = [](int length, int index, int count) { return (length * index + count / 2) / count; };
    const int x = at(cell.width, part.x(), grid.width());
    const int y = at(cell.height, part.y(), grid.height());
    const int end_x = at(cell.width, part.x() + part.width(), grid.width());
    const int end_y = at(cell.height, part.y() + part.height(), grid.height());
    return {x, y, std::max(1, end_x - x), std::max(1, end_y - y)};
}

/// Fields of a grid two columns wide, one bit each: from left to right, then down.
BoxShape fields_shape(const BoxCell& cell, unsigned fields, int rows) {
    BoxShape shape;
    for (int field = 0; field < 2 * rows; ++field) {
        if ((fields >> field & 1U) != 0) {
            shape.rectangles.push_back(part_of(cell, QRect(field % 2, field / 2, 1, 1), {2, rows}));
        }
    }
    return shape;
}

/// U+2580 to U+2595, in eighths of the cell's width and height; 2591 to 2593 are shades.
constexpr std::array<std::array<int, 4>, 22> block_parts{{
    {0, 0, 8, 4}, {0, 7, 8, 1}, {0, 6, 8, 2}, {0, 5, 8, 3}, {0, 4, 8, 4}, {0, 3, 8, 5},  // U+2580
    {0, 2, 8, 6}, {0, 1, 8, 7}, {0, 0, 8, 8}, {0, 0, 7, 8}, {0, 0, 6, 8}, {0, 0, 5, 8},  // U+2586
    {0, 0, 4, 8}, {0, 0, 3, 8}, {0, 0, 2, 8}, {0, 0, 1, 8}, {4, 0, 4, 8}, {0, 0, 8, 8},  // U+258C
    {0, 0, 8, 8}, {0, 0, 8, 8}, {0, 0, 8, 1}, {7, 0, 1, 8},                              // U+2592
}};

BoxShape block_element_shape(const BoxCell& cell, unsigned number) {
    // Upper left 1, upper right 2, lower left 4, lower right 8.
    constexpr std::array<unsigned, 10> quadrants{4, 8, 1, 13, 9, 7, 11, 2, 6, 14};
    constexpr unsigned first_shade = 0x11;
    if (number >= block_parts.size()) {
        return fields_shape(cell, quadrants[number - block_parts.size()], 2);
    }
    const auto [x, y, width, height] = block_parts[number];
    BoxShape shape{.rectangles = {part_of(cell, QRect(x, y, width, height), {eighths, eighths})}};
    if (number >= first_shade && number < first_shade + 3) {
        shape.opacity = 25 * static_cast<int>(number - first_shade + 1);
    }
    return shape;
}

/// Dots are numbered down the columns, the fourth row last (ISO/TR 11548-1). They stand at even distances,
/// also from those of the next cell.
BoxShape braille_shape(const BoxCell& cell, unsigned dots) {
    constexpr std::array<QPoint, 8> places{QPoint{0, 0}, {0, 1}, {0, 2}, {1, 0},
                                           {1, 1},       {1, 2}, {0, 3}, {1, 3}};
    const int size = std::max(1, std::min(cell.width / 4, cell.height / 8));
    BoxShape shape;
    for (unsigned dot = 0; dot < places.size(); ++dot) {
        if ((dots >> dot & 1U) != 0) {
            const QPoint place = places[dot];
            shape.rectangles.emplace_back(((2 * place.x() + 1) * cell.width - 2 * size) / 4,
                                          ((2 * place.y() + 1) * cell.height - 4 * size) / 8, size, size);
        }
    }
    return shape;
}

/// All patterns of six fields in order, but for those that are elsewhere: none, the left half, the right half
/// and all.
BoxShape sextant_shape(const BoxCell& cell, unsigned number) {
    constexpr unsigned before_left_half = 20;
    constexpr unsigned before_right_half = 40;
    const unsigned skipped =
        1U + (number >= before_left_half ? 1U : 0U) + (number >= before_right_half ? 1U : 0U);
    return fields_shape(cell, number + skipped, 3);
}

}  // namespace

BoxShape block_shape(const BoxCell& cell, char32_t character) {
    if (character >= 0x1fb00) {
        return sextant_shape(cell, character - 0x1fb00);
    }
    return character >= 0x2800 ? braille_shape(cell, character - 0x2800)
                               : block_element_shape(cell, character - 0x2580);
}
