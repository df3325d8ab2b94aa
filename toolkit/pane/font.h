// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/box.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QRawFont>
#include <QString>

#include <array>
#include <cstdint>

/// The four faces of a terminal's font.
enum class Face : std::uint8_t { normal, bold, italic, bold_italic };

/// The text of one cell (or two) that the font itself cannot show, laid out with the fonts that can.
struct ShapedCell {
    QList<QGlyphRun> runs;  ///< relative to the start of the base line
    qreal width = 0;
};

/// A font as a grid of cells: whole-pixel cell sizes, and glyphs that are found once.
class TerminalFont {
  public:
    /// `pixel_ratio`: device pixels to the pixel. A row is a whole number of device pixels high, or rows next
    /// to each other would overlap or leave a gap.
    TerminalFont(const QFont& font, qreal pixel_ratio);

    [[nodiscard]] const QFont& font() const { return fonts_[0]; }
    [[nodiscard]] qreal pixel_ratio() const { return pixel_ratio_; }
    [[nodiscard]] int cell_width() const { return cell_width_; }
    [[nodiscard]] int cell_height() const { return cell_height_; }
    [[nodiscard]] int ascent() const { return ascent_; }          ///< from the cell's top to the base line
    [[nodiscard]] int line_width() const { return line_width_; }  ///< of underlines

    [[nodiscard]] const QRawFont& raw(Face face) const { return raw_[static_cast<std::size_t>(face)]; }
    /// The glyph of a character in the font itself; 0 when it has none.
    [[nodiscard]] quint32 glyph(char32_t character, Face face);
    /// `cells` is 2 for wide characters: emoji are taken from a font that has them in colour.
    [[nodiscard]] const ShapedCell& shaped(const QString& text, Face face, int cells);
    /// Whether that has been laid out already, which takes long.
    [[nodiscard]] bool knows(const QString& text, Face face) const {
        return shaped_[static_cast<std::size_t>(face)].contains(text);
    }
    /// The characters that are not taken from the font.
    [[nodiscard]] BoxGlyphs& boxes() { return boxes_; }

  private:
    static constexpr std::size_t faces = 4;
    std::array<QFont, faces> fonts_;
    std::array<QRawFont, faces> raw_;
    QFont emoji_font_;
    std::array<std::array<quint32, 128>, faces> ascii_{};
    std::array<QHash<char32_t, quint32>, faces> others_;
    std::array<QHash<QString, ShapedCell>, faces> shaped_;
    BoxGlyphs boxes_;
    qreal pixel_ratio_;
    int cell_width_ = 1;
    int cell_height_ = 1;
    int ascent_ = 0;
    int line_width_ = 1;
};
