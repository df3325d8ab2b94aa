// SPDX-License-Identifier: MIT
#include "toolkit/pane/box.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

constexpr std::array cell_sizes{QSize{5, 11}, QSize{7, 15}, QSize{10, 19}, QSize{19, 38}, QSize{32, 61}};

enum Edge : unsigned { top = 1, right = 2, bottom = 4, left = 8 };

QImage drawn(char32_t character, QSize size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    BoxGlyphs().draw(painter, QRect({}, size), character, qRgb(255, 255, 255));
    return image;
}

/// The pixels of an edge from left to right or from top to bottom: "#" is ink, blurred by antialiasing or
/// not.
std::string edge_of(const QImage& image, Edge edge) {
    const bool horizontal = edge == top || edge == bottom;
    const int last = horizontal ? image.height() - 1 : image.width() - 1;
    const int across = edge == right || edge == bottom ? last : 0;
    std::string pixels;
    for (int along = 0; along < (horizontal ? image.width() : image.height()); ++along) {
        const QRgb pixel = horizontal ? image.pixel(along, across) : image.pixel(across, along);
        pixels += qRed(pixel) > 64 ? '#' : ' ';
    }
    return pixels;
}

/// How much of the cell is inked, in percent of a whole white cell.
int ink_of(const QImage& image) {
    qint64 sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qRed(image.pixel(x, y));
        }
    }
    return static_cast<int>(std::lround(static_cast<double>(sum) / 2.55 / image.width() / image.height()));
}

TEST(TerminalBox, ArmsMeetThoseOfTheNextCellAndNothingElseTouchesAnEdge) {
    // The edges that U+2500 to U+257F lead to by their names in Unicode.
    constexpr std::string_view edges =
        "aa55aa55aa556666cccc3333999977777777ddddddddeeeeeeeebbbbbbbbffff"
        "ffffffffffffaa55a5666ccc333999777dddeeebbbfff6c9300081248124a5a5";
    for (const QSize size : cell_sizes) {
        const std::array lines{drawn(U'\u253c', size), drawn(U'\u254b', size), drawn(U'\u256c', size)};
        for (std::size_t i = 0; i < edges.size(); ++i) {
            const bool diagonal = i >= 0x71 && i <= 0x73;
            const bool dashed = (i >= 0x04 && i <= 0x0b) || (i >= 0x4c && i <= 0x4f);
            const auto expected = static_cast<unsigned>(std::stoi(std::string(1, edges[i]), nullptr, 16));
            const QImage image = drawn(U'\u2500' + static_cast<char32_t>(i), size);
            EXPECT_GT(ink_of(image), 0) << std::hex << 0x2500 + i;
            for (const Edge edge : {top, right, bottom, left}) {
                const std::string found = edge_of(image, edge);
                const bool is_line = std::any_of(lines.begin(), lines.end(), [&](const QImage& line) {
                    return edge_of(line, edge) == found;
                });
                const bool empty = found.find('#') == std::string::npos;
                EXPECT_TRUE(diagonal || ((expected & edge) != 0 ? is_line || (dashed && empty) : empty))
                    << std::hex << 0x2500 + i << " edge " << edge << " at " << std::dec << size.width()
                    << ": " << found;
            }
        }
    }
}

TEST(TerminalBox, CellsNextToEachOtherJoinAtAnyScale) {
    constexpr QSize cell(9, 19);
    for (const qreal ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        QImage image(cell * 3 * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::black);
        QPainter painter(&image);
        BoxGlyphs boxes;
        for (int i = 0; i < 9; ++i) {
            const QPoint corner(i % 3 * cell.width(), i / 3 * cell.height());
            boxes.draw(painter, QRect(corner, cell), U'\u253c', qRgb(255, 255, 255));
        }
        painter.end();
        // Where a line leaves the picture, it has come all the way.
        const auto at = [&](Edge edge) { return static_cast<int>(edge_of(image, edge).find('#')); };
        const QImage row = image.copy(0, at(left), image.width(), 1);
        const QImage column = image.copy(at(top), 0, 1, image.height());
        EXPECT_EQ(edge_of(row, top).find(' '), std::string::npos) << ratio;
        EXPECT_EQ(edge_of(column, left).find(' '), std::string::npos) << ratio;
    }
}

TEST(TerminalBox, BlocksFillTheirPart) {
    struct {
        const char* name;
        char32_t character;
        int percent;
    } const rows[]{
        {"upper_half", U'\u2580', 50},
        {"lower_eighth", U'\u2581', 13},
        {"lower_three_quarters", U'\u2586', 75},
        {"full", U'\u2588', 100},
        {"left_eighth", U'\u258f', 13},
        {"left_seven_eighths", U'\u2589', 88},
        {"right_half", U'\u2590', 50},
        {"light_shade", U'\u2591', 25},
        {"medium_shade", U'\u2592', 50},
        {"dark_shade", U'\u2593', 75},
        {"upper_eighth", U'\u2594', 13},
        {"right_eighth", U'\u2595', 13},
        {"one_quadrant", U'\u259d', 25},
        {"quadrants", U'\u259a', 50},
        {"three_quadrants", U'\u259f', 75},
        {"braille_none", U'\u2800', 0},
        {"braille_one", U'\u2801', 3},
        {"braille_all", U'\u28ff', 25},
        {"scan_line", U'\u23ba', 5},
        {"arrow", U'\ue0b0', 50},
        {"sextant", U'\U0001fb00', 17},
        {"five_sextants", U'\U0001fb3b', 83},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(ink_of(drawn(row.character, {32, 64})), row.percent, 1) << row.name;
    }
}

TEST(TerminalBox, PartsOfTheCellAreWhereTheirNamesSay) {
    constexpr QSize size(16, 24);
    struct {
        char32_t character;
        const char* top;
        const char* left;
    } const rows[]{
        {U'\u2598', "########        ", "############            "},      // quadrant upper left
        {U'\u259c', "################", "############            "},      // all but lower left
        {U'\u2596', "                ", "            ############"},      // lower left
        {U'\u258c', "########        ", "########################"},      // left half
        {U'\U0001fb13', "                ", "        ################"},  // sextants 3 and 5
        {U'\U0001fb14', "        ########", "        ################"},  // sextants 2, 3 and 5
        {U'\u28ff', "                ", "                        "},      // braille dots touch no edge
    };
    for (const auto& row : rows) {
        const QImage image = drawn(row.character, size);
        EXPECT_EQ(edge_of(image, top), row.top) << std::hex << static_cast<std::uint32_t>(row.character);
        EXPECT_EQ(edge_of(image, left), row.left) << std::hex << static_cast<std::uint32_t>(row.character);
    }
}

}  // namespace
