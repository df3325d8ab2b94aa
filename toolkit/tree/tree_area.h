// SPDX-License-Identifier: MIT
#pragma once

/// A rectangle in pixels, from the upper left corner of the tree.
struct TreeArea {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int right() const { return x + width; }
    [[nodiscard]] int bottom() const { return y + height; }
    [[nodiscard]] bool holds(int px, int py) const {
        return px >= x && px < right() && py >= y && py < bottom();
    }
    [[nodiscard]] bool touches(const TreeArea& other) const {
        return x < other.right() && other.x < right() && y < other.bottom() && other.y < bottom();
    }
    bool operator==(const TreeArea&) const = default;
};
