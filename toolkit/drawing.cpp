// SPDX-License-Identifier: MIT
#include "toolkit/drawing.h"

#include "toolkit/tree/shown_label.h"

#include <QBuffer>
#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr int points_per_inch = 72;
const QLatin1String creator("Orvik Command Center");

QFont font_for(const DrawnText& text) {
    const bool serif = text.font == DrawnFont::serif;
    QFont font(serif ? QStringLiteral("Times") : QStringLiteral("Helvetica"));
    font.setStyleHint(serif ? QFont::Serif : QFont::SansSerif);
    font.setBold(text.font == DrawnFont::sans_bold);
    font.setPointSize(text.size);
    return font;
}

/// Draws on a device of that resolution. The device itself is not scaled: letters would stand at whole points
/// then.
void draw(const Drawing& drawing, QPaintDevice& device, int resolution) {
    const double dots = double(resolution) / points_per_inch;
    const auto at = [&](int x, int y) { return QPointF(x, drawing.height - y) * dots; };
    QPainter painter(&device);
    for (const DrawnLine& line : drawing.lines) {
        painter.setPen(QPen(Qt::black, line.width * dots));
        painter.drawLine(at(line.x0, line.y0), at(line.x1, line.y1));
    }
    painter.setPen(Qt::black);
    for (const DrawnText& text : drawing.texts) {
        painter.setFont(font_for(text));
        painter.drawText(at(text.x, text.y), shown_label(text.text));
    }
}

}  // namespace

std::string pdf_of(const Drawing& drawing) {
    constexpr int resolution = 1200;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(shown_label(drawing.title));
    writer.setCreator(creator);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(QSizeF(drawing.width, drawing.height), QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    draw(drawing, writer, resolution);
    return buffer.data().toStdString();
}

std::string svg_of(const Drawing& drawing) {
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(shown_label(drawing.title));
    generator.setDescription(creator);
    generator.setResolution(points_per_inch);
    generator.setSize({drawing.width, drawing.height});
    generator.setViewBox(QRect(0, 0, drawing.width, drawing.height));
    draw(drawing, generator, points_per_inch);
    return buffer.data().toStdString();
}
