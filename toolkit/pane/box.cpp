// SPDX-License-Identifier: MIT
#include "toolkit/pane/box.h"

#include <QColor>
#include <QPainter>

#include <cmath>

namespace {

constexpr qsizetype cache_limit = 1024;

BoxShape make_shape(const BoxCell& cell, char32_t character) {
    const bool curved =
        (character >= 0x256d && character <= 0x2573) || (character >= 0xe000 && character <= 0xf8ff);
    if (curved) {
        return curve_shape(cell, character);
    }
    return character < 0x2580 ? line_shape(cell, character) : block_shape(cell, character);
}

/// Of a light line, as thick as the stems of most fonts.
int line_width(qreal cell_width) { return cell_width < 12 ? 1 : static_cast<int>(cell_width + 2) / 8; }

}  // namespace

const BoxShape& BoxGlyphs::shape(const ShapeKey& key) {
    if (const auto found = shapes_.constFind(key); found != shapes_.constEnd()) {
        return *found;
    }
    if (shapes_.size() >= cache_limit) {
        shapes_.clear();
    }
    return *shapes_.insert(key, make_shape(key.second, key.first));
}

const QImage& BoxGlyphs::picture(const ShapeKey& key, QRgb colour) {
    const std::pair key_of_picture{key, colour};
    if (const auto found = pictures_.constFind(key_of_picture); found != pictures_.constEnd()) {
        return *found;
    }
    if (pictures_.size() >= cache_limit) {
        pictures_.clear();
    }
    const BoxShape& drawn = shape(key);
    QImage image(key.second.width, key.second.height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (drawn.pen > 0) {
        painter.strokePath(drawn.path, QPen(QColor::fromRgb(colour), drawn.pen, Qt::SolidLine, Qt::FlatCap));
    } else {
        painter.fillPath(drawn.path, QColor::fromRgb(colour));
    }
    return *pictures_.insert(key_of_picture, image);
}

void BoxGlyphs::draw(QPainter& painter, const QRect& cell, char32_t character, QRgb colour) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const auto pixels = [ratio](int at) { return static_cast<int>(std::lround(at * ratio)); };
    const QPoint corner(pixels(cell.x()), pixels(cell.y()));
    const ShapeKey key{character,
                       {pixels(cell.x() + cell.width()) - corner.x(),
                        pixels(cell.y() + cell.height()) - corner.y(), line_width(cell.width() * ratio)}};
    const BoxShape& drawn = shape(key);
    if (!drawn.path.isEmpty()) {
        QImage image = picture(key, colour);
        image.setDevicePixelRatio(ratio);
        painter.drawImage(QPointF(corner) / ratio, image);
        return;
    }
    QColor ink = QColor::fromRgb(colour);
    ink.setAlphaF(static_cast<float>(drawn.opacity) / 100.0F);
    for (const QRect& rectangle : drawn.rectangles) {
        painter.fillRect(
            QRectF(QPointF(corner + rectangle.topLeft()) / ratio, QSizeF(rectangle.size()) / ratio), ink);
    }
}
