// SPDX-License-Identifier: MIT
#include "toolkit/font.h"

#include "toolkit/desktop.h"
#include "toolkit/font_name.h"
#include "toolkit/text_conversion.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>

#include <array>
#include <cmath>

namespace {

constexpr std::array<int, 4> points_of_scale{9, 10, 12, 15};

int points_of(FontScale scale) { return points_of_scale[static_cast<std::size_t>(scale)]; }

QFont fixed_width_font() {
    QFont font = desktop_fixed_font();
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

/// A scale of the desktop's font of fixed width: medium is the size it has.
void apply_scale(QFont& fixed, FontScale scale) {
    const double share = static_cast<double>(points_of(scale)) / points_of(FontScale::medium);
    if (fixed.pointSizeF() > 0) {
        fixed.setPointSizeF(fixed.pointSizeF() * share);
    } else {
        fixed.setPixelSize(static_cast<int>(std::lround(fixed.pixelSize() * share)));
    }
}

/// The largest size whose line fits a cell of that height.
void fit_to_cell(QFont& font, int cell_pixels) {
    int pixels = cell_pixels;
    do {
        font.setPixelSize(pixels);
    } while (QFontMetrics(font).height() > cell_pixels && --pixels > 1);
}

}  // namespace

Font::Font(const QFont& font) : font_(std::make_shared<const QFont>(font)) {}

Font xv_find(const FontRequest& request) {
    const bool fixed = request.family == FontFamily::fixed_width;
    QFont font = fixed ? fixed_width_font() : QApplication::font();
    if (fixed && !request.points) {
        apply_scale(font, request.scale);
    } else {
        font.setPointSize(request.points.value_or(points_of(request.scale)));
    }
    font.setBold(request.style == FontStyle::bold);
    return Font(font);
}

Font xv_find(std::string_view name) {
    const FontDescription description = parse_font_name(name);
    QFont font = fixed_width_font();
    if (!description.family.empty()) {
        QFont named = font;
        named.setFamily(to_qstring(description.family));
        if (QFontInfo(named).fixedPitch()) {
            font = named;
        }
    }
    font.setBold(description.bold);
    font.setItalic(description.italic);
    if (description.pixels > 0) {
        font.setPixelSize(description.pixels);
    } else if (description.points > 0) {
        font.setPointSizeF(description.points);
    } else if (description.cell_pixels > 0) {
        fit_to_cell(font, description.cell_pixels);
    }
    return Font(font);
}
