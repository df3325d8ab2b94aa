// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/limits.h"

#include <algorithm>

namespace terminal {

/// Size of the screen in character positions.
struct Size {
    int columns = 80;
    int rows = 24;
    bool operator==(const Size&) const = default;
};

/// The nearest size that a screen can have.
inline Size within_limits(Size size) {
    return {std::clamp(size.columns, min_columns, max_columns), std::clamp(size.rows, min_rows, max_rows)};
}

/// Rows `top` up to, not including, `bottom`; columns `left` up to, not including, `right`.
struct Region {
    int top = 0;
    int bottom = 0;
    int left = 0;
    int right = 0;
    [[nodiscard]] int height() const { return bottom - top; }
    [[nodiscard]] int width() const { return right - left; }
    [[nodiscard]] bool contains(int row, int column) const {
        return row >= top && row < bottom && column >= left && column < right;
    }
    bool operator==(const Region&) const = default;
};

}  // namespace terminal
