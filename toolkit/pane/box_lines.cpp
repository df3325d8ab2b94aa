// SPDX-License-Identifier: MIT
#include "toolkit/pane/box_shape.h"

#include <algorithm>
#include <array>

namespace {

// The four arms of each box drawing character from U+2500 on, as "up right down left": 0 none, 1 light,
// 2 heavy, 3 double. All 0 for dashes, arcs and diagonals, which have a way of their own.
constexpr std::array<const char*, 128> arms_of_characters{
    "0101", "0202", "1010", "2020", "0000", "0000", "0000", "0000",  // U+2500
    "0000", "0000", "0000", "0000", "0110", "0210", "0120", "0220",  // U+2508
    "0011", "0012", "0021", "0022", "1100", "1200", "2100", "2200",  // U+2510
    "1001", "1002", "2001", "2002", "1110", "1210", "2110", "1120",  // U+2518
    "2120", "2210", "1220", "2220", "1011", "1012", "2011", "1021",  // U+2520
    "2021", "2012", "1022", "2022", "0111", "0112", "0211", "0212",  // U+2528
    "0121", "0122", "0221", "0222", "1101", "1102", "1201", "1202",  // U+2530
    "2101", "2102", "2201", "2202", "1111", "1112", "1211", "1212",  // U+2538
    "2111", "1121", "2121", "2112", "2211", "1122", "1221", "2212",  // U+2540
    "1222", "2122", "2221", "2222", "0000", "0000", "0000", "0000",  // U+2548
    "0303", "3030", "0310", "0130", "0330", "0013", "0031", "0033",  // U+2550
    "1300", "3100", "3300", "1003", "3001", "3003", "1310", "3130",  // U+2558
    "3330", "1013", "3031", "3033", "0313", "0131", "0333", "1303",  // U+2560
    "3101", "3303", "1313", "3131", "3333", "0000", "0000", "0000",  // U+2568
    "0000", "0000", "0000", "0000", "0001", "1000", "0100", "0010",  // U+2570
    "0002", "2000", "0200", "0020", "0201", "1020", "0102", "2010",  // U+2578
};

enum Direction : std::uint8_t { up, right, down, left };
enum Weight : std::uint8_t { absent, light, heavy, twofold };

/// Sees the cell as if its arm pointed right: along the arm, and across it. All four arms then are one
/// routine.
class Arms {
  public:
    Arms(const BoxCell& cell, const char* weights) : cell_(cell), line_(cell.line), weights_(weights) {}

    BoxShape shape() {
        for (const Direction direction : {up, right, down, left}) {
            switch (weight(direction)) {
                case absent:
                    break;
                case light:
                case heavy:
                    add_single(direction);
                    break;
                case twofold:
                    add_double(direction);
                    break;
            }
        }
        return std::move(shape_);
    }

  private:
    [[nodiscard]] Weight weight(int direction) const {
        return static_cast<Weight>(weights_[direction & 3] - '0');
    }
    [[nodiscard]] int thickness(Weight weight) const { return weight == heavy ? cell_.heavy_line() : line_; }
    /// Distance of a double line's strokes from the middle.
    [[nodiscard]] int gap() const { return line_ + cell_.width / 12; }

    /// A stroke of the arm from `start` (0 is the cell's middle, the arm's direction positive) to the cell's
    /// edge, shifted clockwise from the arm by `offset`.
    void add_stroke(Direction direction, int start, int offset, int thick) {
        const int middle_x = cell_.width / 2;
        const int middle_y = cell_.height / 2;
        const int half = thick / 2;
        const int last = line_ % 2 - 1;  // a line of even width has one pixel less behind its middle
        QRect area;
        switch (direction) {
            case right:
                area.setCoords(middle_x + start, middle_y + offset - half, cell_.width - 1, 0);
                break;
            case left:
                area.setCoords(0, middle_y - offset - half, middle_x - start + last, 0);
                break;
            case down:
                area.setCoords(middle_x - offset - half, middle_y + start, 0, cell_.height - 1);
                break;
            case up:
                area.setCoords(middle_x + offset - half, 0, 0, middle_y - start + last);
                break;
        }
        const bool horizontal = direction == right || direction == left;
        horizontal ? area.setHeight(thick) : area.setWidth(thick);
        shape_.rectangles.push_back(area);
    }

    void add_single(Direction direction) {
        const Weight clockwise = weight(direction + 1);
        const Weight counter = weight(direction + 3);
        const bool goes_on = weight(direction + 2) != absent;
        const int thick = thickness(weight(direction));
        int start = 0;
        if (clockwise == twofold && counter == twofold && !goes_on) {
            start = gap();
        } else if (clockwise == twofold || counter == twofold) {
            start = -gap() - line_ / 2;
        } else {
            start = -std::max({thickness(clockwise), thickness(counter), thick}) / 2;
        }
        add_stroke(direction, start, 0, thick);
    }

    /// Each of the two strokes ends where it meets what is on its side: an inner corner, a single line in the
    /// middle, or round an outer corner.
    void add_double(Direction direction) {
        for (const int side : {1, -1}) {
            const Weight same_side = weight(direction + side);
            const Weight other_side = weight(direction - side + 4);
            int start = 0;
            if (same_side == twofold) {
                start = gap() - line_ / 2;
            } else if (same_side == absent && other_side == twofold) {
                start = -gap() - line_ / 2;
            } else {
                start = -line_ / 2;
            }
            add_stroke(direction, start, side * gap(), line_);
        }
    }

    BoxCell cell_;
    int line_;
    const char* weights_;
    BoxShape shape_;
};

struct Dashes {
    char32_t first;  ///< light horizontal, heavy horizontal, light vertical, heavy vertical follow each other
    int count;
};
constexpr std::array dash_groups{Dashes{0x2504, 3}, Dashes{0x2508, 4}, Dashes{0x254c, 2}};

/// Half a gap stands at either end, so that the dashes go on evenly in the next cell.
BoxShape dashes_shape(const BoxCell& cell, unsigned kind, int count) {
    const bool vertical = (kind & 2) != 0;
    const int thick = (kind & 1) != 0 ? cell.heavy_line() : cell.line;
    const int length = vertical ? cell.height : cell.width;
    const int gap = std::max(1, length / count / 3);
    BoxShape shape;
    for (int i = 0; i < count; ++i) {
        const int begin = length * i / count + gap / 2;
        const int size = std::max(1, length * (i + 1) / count + gap / 2 - gap - begin);
        shape.rectangles.push_back(vertical ? QRect(cell.middle_x(thick), begin, thick, size)
                                            : QRect(begin, cell.middle_y(thick), size, thick));
    }
    return shape;
}

/// The horizontal lines at the heights of scans 1, 3, 7 and 9 of nine; scan 5 is U+2500.
BoxShape scan_line_shape(const BoxCell& cell, int number) {
    constexpr std::array eighths{0, 2, 6, 8};
    const int top = (cell.height - cell.line) * eighths[static_cast<std::size_t>(number)] / 8;
    return {.rectangles = {QRect(0, top, cell.width, cell.line)}};
}

}  // namespace

BoxShape line_shape(const BoxCell& cell, char32_t character) {
    if (character < 0x2500) {
        return scan_line_shape(cell, static_cast<int>(character - 0x23ba));
    }
    for (const Dashes& dashes : dash_groups) {
        if (character >= dashes.first && character < dashes.first + 4) {
            return dashes_shape(cell, character - dashes.first, dashes.count);
        }
    }
    return Arms(cell, arms_of_characters[character - 0x2500]).shape();
}
