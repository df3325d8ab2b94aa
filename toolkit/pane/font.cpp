// SPDX-License-Identifier: MIT
#include "toolkit/pane/font.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype cache_limit = 8192;  ///< texts and characters kept for each face

ShapedCell lay_out(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    ShapedCell cell{layout.glyphRuns(), line.naturalTextWidth()};
    for (QGlyphRun& run : cell.runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions) {
            position.ry() -= line.ascent();
        }
        run.setPositions(positions);
    }
    return cell;
}

/// The next height that is; the same one when none is near, as with a ratio of 1.37.
int whole_device_pixels(int height, qreal ratio) {
    constexpr int most_added = 3;
    for (int added = 0; added <= most_added; ++added) {
        const qreal pixels = (height + added) * ratio;
        if (pixels == std::floor(pixels)) {
            return height + added;
        }
    }
    return height;
}

/// Whether the text is one character with combining ones behind it.
bool has_only_marks_behind(const QString& text, qsizetype base) {
    const QList<uint> marks = text.mid(base).toUcs4();
    return !marks.empty() && std::all_of(marks.begin(), marks.end(), [](uint character) {
        const QChar::Category category = QChar::category(character);
        return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
    });
}

/// In some fonts the picture of a combining character is not to the left of where it starts, or it even has a
/// width of its own. It is drawn over the base all the same.
ShapedCell shape(const QString& text, const QFont& font) {
    ShapedCell cell = lay_out(text, font);
    const qsizetype base = text.front().isHighSurrogate() ? 2 : 1;
    if (!has_only_marks_behind(text, base)) {
        return cell;
    }
    cell.width = lay_out(text.left(base), font).width;
    for (QGlyphRun& run : cell.runs) {
        QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < positions.size(); ++i) {
            const QRectF picture = run.rawFont().boundingRect(run.glyphIndexes()[i]);
            const bool behind = positions[i].x() + picture.center().x() > cell.width;
            positions[i].rx() -= behind ? cell.width : 0;
        }
        run.setPositions(positions);
    }
    return cell;
}

/// As a picture, not as a character: what is two cells wide among the symbols, and what is followed by
/// U+FE0F; but nothing followed by U+FE0E (Unicode Technical Standard 51). Ideographs and syllables are wide,
/// too, and keep their face.
bool is_emoji(const QString& text, int cells) {
    constexpr uint first_symbol = 0x231A;
    constexpr uint behind_symbols = 0x2C00;
    constexpr uint first_picture = 0x1F000;
    constexpr uint first_ideograph_behind = 0x20000;
    const uint first = text.toUcs4().value(0);
    const bool symbol = (first >= first_symbol && first < behind_symbols) ||
                        (first >= first_picture && first < first_ideograph_behind);
    return text.contains(QChar(0xfe0f)) || (cells == 2 && symbol && !text.contains(QChar(0xfe0e)));
}

quint32 find_glyph(const QRawFont& font, char32_t character) {
    const QList<quint32> glyphs = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
    return glyphs.size() == 1 ? glyphs.front() : 0;
}

}  // namespace

TerminalFont::TerminalFont(const QFont& font, qreal pixel_ratio) : pixel_ratio_(pixel_ratio) {
    for (std::size_t face = 0; face < faces; ++face) {
        fonts_[face] = font;
        fonts_[face].setKerning(false);
        fonts_[face].setFixedPitch(true);
        if ((face & 1) != 0) {
            fonts_[face].setBold(true);
        }
        if ((face & 2) != 0) {
            fonts_[face].setItalic(true);
        }
        raw_[face] = QRawFont::fromFont(fonts_[face]);
        for (char32_t character = ' '; character < 127; ++character) {
            ascii_[face][character] = find_glyph(raw_[face], character);
        }
    }
    // What the alias of fontconfig stands for. Qt would ask it only for what other fonts do not have.
    emoji_font_ = fonts_[0];
    emoji_font_.setFamilies({QFontInfo(QFont(QStringLiteral("emoji"))).family(), fonts_[0].family()});
    const QFontMetricsF metrics(fonts_[0]);
    cell_width_ = std::max(1, static_cast<int>(std::lround(metrics.horizontalAdvance(u'M'))));
    ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
    cell_height_ = std::max(1, ascent_ + static_cast<int>(std::ceil(metrics.descent())));
    cell_height_ = whole_device_pixels(cell_height_, pixel_ratio);
    line_width_ = std::max(1, static_cast<int>(std::lround(cell_width_ / 8.0)));
}

quint32 TerminalFont::glyph(char32_t character, Face face) {
    const auto index = static_cast<std::size_t>(face);
    if (character < 128) {
        return ascii_[index][character];
    }
    QHash<char32_t, quint32>& known = others_[index];
    if (const auto found = known.constFind(character); found != known.constEnd()) {
        return *found;
    }
    if (known.size() >= cache_limit) {
        known.clear();
    }
    return *known.insert(character, find_glyph(raw_[index], character));
}

const ShapedCell& TerminalFont::shaped(const QString& text, Face face, int cells) {
    const auto index = static_cast<std::size_t>(face);
    QHash<QString, ShapedCell>& known = shaped_[index];
    if (const auto found = known.constFind(text); found != known.constEnd()) {
        return *found;
    }
    if (known.size() >= cache_limit) {
        known.clear();
    }
    return *known.insert(text, shape(text, is_emoji(text, cells) ? emoji_font_ : fonts_[index]));
}
