// SPDX-License-Identifier: MIT
#include "toolkit/pane/box_shape.h"

#include <algorithm>

namespace {

/// A quarter of a circle between two straight pieces, in the middle of what straight lines cover.
BoxShape arc_shape(const BoxCell& cell, char32_t character) {
    constexpr qreal handle = 0.5523;  // of the radius: where a cubic curve comes nearest to a quarter circle
    const bool to_right = character == 0x256d || character == 0x2570;
    const bool to_bottom = character == 0x256d || character == 0x256e;
    const qreal x = cell.middle_x(cell.line) + cell.line / 2.0;
    const qreal y = cell.middle_y(cell.line) + cell.line / 2.0;
    const qreal radius = std::min(cell.width, cell.height) / 2.0;
    const qreal right = to_right ? 1 : -1;
    const qreal down = to_bottom ? 1 : -1;
    QPainterPath path(QPointF(x, to_bottom ? cell.height : 0));
    path.lineTo(x, y + down * radius);
    path.cubicTo(x, y + down * radius * (1 - handle), x + right * radius * (1 - handle), y,
                 x + right * radius, y);
    path.lineTo(to_right ? cell.width : 0, y);
    return {.path = path, .pen = cell.line};
}

/// The ends lie beyond the corners, so that the line fills them.
BoxShape diagonals_shape(const BoxCell& cell, char32_t character) {
    const qreal width = cell.width;
    const qreal height = cell.height;
    QPainterPath path;
    if (character != 0x2572) {
        path.moveTo(2 * width, -height);
        path.lineTo(-width, 2 * height);
    }
    if (character != 0x2571) {
        path.moveTo(-width, -height);
        path.lineTo(2 * width, 2 * height);
    }
    return {.path = path, .pen = cell.line};
}

/// To the right, filled and as a line; then to the left.
BoxShape arrow_shape(const BoxCell& cell, unsigned number) {
    const bool to_right = number < 2;
    const bool filled = number % 2 == 0;
    const qreal back = to_right ? 0 : cell.width;
    const qreal tip = to_right ? cell.width : 0;
    QPainterPath path(QPointF(back, 0));
    path.lineTo(tip, cell.height / 2.0);
    path.lineTo(back, cell.height);
    return {.path = path, .pen = filled ? 0 : cell.line};
}

}  // namespace

BoxShape curve_shape(const BoxCell& cell, char32_t character) {
    if (character >= 0xe0b0) {
        return arrow_shape(cell, character - 0xe0b0);
    }
    return character < 0x2571 ? arc_shape(cell, character) : diagonals_shape(cell, character);
}
