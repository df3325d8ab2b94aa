// SPDX-License-Identifier: MIT
#include "toolkit/terminal_box.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRect>

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

/// Draws into a cell seen as if its arm pointed right: along the arm, and across it. All four arms then are
/// one routine.
class ArmPainter {
  public:
    ArmPainter(QPainter& painter, const QRect& cell, int line_width, const QColor& colour, const char* arms)
        : painter_(painter), cell_(cell), line_(line_width), colour_(colour), arms_(arms) {}

    void draw() {
        for (const Direction direction : {up, right, down, left}) {
            switch (weight(direction)) {
                case absent:
                    break;
                case light:
                case heavy:
                    draw_single(direction);
                    break;
                case twofold:
                    draw_double(direction);
                    break;
            }
        }
    }

  private:
    [[nodiscard]] Weight weight(int direction) const {
        return static_cast<Weight>(arms_[direction & 3] - '0');
    }
    /// Even when a light line is, so that both have one middle.
    [[nodiscard]] int thickness(Weight weight) const {
        return weight == heavy ? 2 * line_ + line_ % 2 : line_;
    }
    /// Distance of a double line's strokes from the middle.
    [[nodiscard]] int gap() const { return line_ + std::max(0, cell_.width() / 12); }

    /// A stroke of the arm from `start` (0 is the cell's middle, the arm's direction positive) to the cell's
    /// edge, shifted clockwise from the arm by `offset`.
    void stroke(Direction direction, int start, int offset, int thick) {
        const int middle_x = cell_.x() + cell_.width() / 2;
        const int middle_y = cell_.y() + cell_.height() / 2;
        const int half = thick / 2;
        const int last = line_ % 2 - 1;  // a line of even width has one pixel less behind its middle
        QRect area;
        switch (direction) {
            case right:
                area.setCoords(middle_x + start, middle_y + offset - half, cell_.right(), 0);
                break;
            case left:
                area.setCoords(cell_.left(), middle_y - offset - half, middle_x - start + last, 0);
                break;
            case down:
                area.setCoords(middle_x - offset - half, middle_y + start, 0, cell_.bottom());
                break;
            case up:
                area.setCoords(middle_x + offset - half, cell_.top(), 0, middle_y - start + last);
                break;
        }
        const bool horizontal = direction == right || direction == left;
        horizontal ? area.setHeight(thick) : area.setWidth(thick);
        painter_.fillRect(area, colour_);
    }

    void draw_single(Direction direction) {
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
        stroke(direction, start, 0, thick);
    }

    /// Each of the two strokes ends where it meets what is on its side: an inner corner, a single line in the
    /// middle, or round an outer corner.
    void draw_double(Direction direction) {
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
            stroke(direction, start, side * gap(), line_);
        }
    }

    QPainter& painter_;
    QRect cell_;
    int line_;
    QColor colour_;
    const char* arms_;
};

struct Dashes {
    char32_t first;  ///< light horizontal, heavy horizontal, light vertical, heavy vertical follow each other
    int count;
};
constexpr std::array dash_groups{Dashes{0x2504, 3}, Dashes{0x2508, 4}, Dashes{0x254c, 2}};

void draw_dashes(QPainter& painter, const QRect& cell, char32_t character, const Dashes& dashes, int line,
                 const QColor& colour) {
    const bool vertical = ((character - dashes.first) & 2) != 0;
    const int thick = ((character - dashes.first) & 1) != 0 ? 2 * line + 1 : line;
    const int length = vertical ? cell.height() : cell.width();
    for (int i = 0; i < dashes.count; ++i) {
        const int begin = length * i / dashes.count;
        const int end = length * (i + 1) / dashes.count;
        const int size = std::max(1, (end - begin) * 2 / 3);
        const int middle = (vertical ? cell.width() : cell.height()) / 2 - thick / 2;
        painter.fillRect(vertical ? QRect(cell.x() + middle, cell.y() + begin, thick, size)
                                  : QRect(cell.x() + begin, cell.y() + middle, size, thick),
                         colour);
    }
}

void draw_arc(QPainter& painter, const QRect& cell, char32_t character, int line, const QColor& colour) {
    const bool to_right = character == 0x256d || character == 0x2570;
    const bool to_bottom = character == 0x256d || character == 0x256e;
    // The middle of a straight line's thickness, so that arcs and lines join.
    const int line_left = cell.x() + cell.width() / 2 - line / 2;
    const int line_top = cell.y() + cell.height() / 2 - line / 2;
    const qreal middle_x = line_left + line / 2.0;
    const qreal middle_y = line_top + line / 2.0;
    const qreal edge_x = to_right ? cell.x() + cell.width() : cell.x();
    const qreal edge_y = to_bottom ? cell.y() + cell.height() : cell.y();
    const qreal radius = std::min(cell.width(), cell.height()) / 2.0;
    QPainterPath path(QPointF(middle_x, edge_y));
    path.lineTo(middle_x, middle_y + (to_bottom ? radius : -radius));
    path.quadTo(middle_x, middle_y, middle_x + (to_right ? radius : -radius), middle_y);
    path.lineTo(edge_x, middle_y);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.strokePath(path, QPen(colour, line, Qt::SolidLine, Qt::FlatCap));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void draw_diagonals(QPainter& painter, const QRect& cell, char32_t character, int line,
                    const QColor& colour) {
    const QRectF area(cell);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(colour, line, Qt::SolidLine, Qt::FlatCap));
    if (character != 0x2572) {
        painter.drawLine(area.topRight(), area.bottomLeft());
    }
    if (character != 0x2571) {
        painter.drawLine(area.topLeft(), area.bottomRight());
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// A part of the cell in eighths from its left and top.
void fill_eighths(QPainter& painter, const QRect& cell, QRect eighths, const QColor& colour) {
    const auto x = [&](int eighth) { return cell.x() + cell.width() * eighth / 8; };
    const auto y = [&](int eighth) { return cell.y() + cell.height() * eighth / 8; };
    const int bottom = eighths.y() + eighths.height();
    const int end = eighths.x() + eighths.width();
    painter.fillRect(
        QRect(x(eighths.x()), y(eighths.y()), x(end) - x(eighths.x()), y(bottom) - y(eighths.y())), colour);
}

void draw_block(QPainter& painter, const QRect& cell, char32_t character, const QColor& colour) {
    const int number = static_cast<int>(character) - 0x2580;
    const auto fill = [&](int x, int y, int width, int height) {
        fill_eighths(painter, cell, QRect(x, y, width, height), colour);
    };
    if (number == 0) {
        fill(0, 0, 8, 4);
    } else if (number <= 8) {
        fill(0, 8 - number, 8, number);
    } else if (number <= 0xf) {
        fill(0, 0, 0x10 - number, 8);
    } else if (number == 0x10) {
        fill(4, 0, 4, 8);
    } else if (number <= 0x13) {
        QColor shade = colour;
        shade.setAlphaF(static_cast<float>(number - 0x10) / 4.0F);
        painter.fillRect(cell, shade);
    } else if (number == 0x14) {
        fill(0, 0, 8, 1);
    } else if (number == 0x15) {
        fill(7, 0, 1, 8);
    } else {
        // Upper left 1, upper right 2, lower left 4, lower right 8.
        constexpr std::array<int, 10> quadrants{4, 8, 1, 13, 9, 7, 11, 2, 6, 14};
        const int parts = quadrants[static_cast<std::size_t>(number - 0x16)];
        for (int quarter = 0; quarter < 4; ++quarter) {
            if ((parts >> quarter & 1) != 0) {
                fill(quarter % 2 * 4, quarter / 2 * 4, 4, 4);
            }
        }
    }
}

}  // namespace

void draw_box_character(QPainter& painter, const QRect& cell, char32_t character, int line_width,
                        const QColor& colour) {
    if (character >= 0x2580) {
        draw_block(painter, cell, character, colour);
        return;
    }
    for (const Dashes& dashes : dash_groups) {
        if (character >= dashes.first && character < dashes.first + 4) {
            draw_dashes(painter, cell, character, dashes, line_width, colour);
            return;
        }
    }
    if (character >= 0x256d && character <= 0x2570) {
        draw_arc(painter, cell, character, line_width, colour);
    } else if (character >= 0x2571 && character <= 0x2573) {
        draw_diagonals(painter, cell, character, line_width, colour);
    } else {
        ArmPainter(painter, cell, line_width, colour, arms_of_characters[character - 0x2500]).draw();
    }
}
