// SPDX-License-Identifier: MIT
#pragma once

/// Columns of a row, from `begin` up to, not including, `end`.
struct Columns {
    int begin = 0;
    int end = 0;
    [[nodiscard]] bool contain(int column) const { return column >= begin && column < end; }
    bool operator==(const Columns&) const = default;
};
