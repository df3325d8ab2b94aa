// SPDX-License-Identifier: MIT
#include "toolkit/tree/label_fonts.h"

#include "toolkit/tree/shown_label.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

/// The program's fonts of these sizes, where no others were set.
Font standard_font(int font_size, FontStyle style) {
    constexpr int extra_small_points = 8;
    constexpr std::array scales{FontScale::small, FontScale::small, FontScale::medium, FontScale::large};
    FontRequest request{.style = style, .scale = scales[static_cast<std::size_t>(font_size)]};
    if (font_size == 0) {
        request.points = extra_small_points;
    }
    return xv_find(request);
}

/// Without shaping where the script does not ask for it: a text of ASCII is as wide as its characters.
QFont without_shaping(QFont font) {
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(font.styleStrategy() | QFont::PreferNoShaping));
    return font;
}

}  // namespace

LabelFont::LabelFont(const QFont& wanted) : font(without_shaping(wanted)) {
    const QFontMetricsF metrics(font);
    ascent = static_cast<int>(std::ceil(metrics.ascent()));
    height = static_cast<int>(std::ceil(metrics.height()));
    for (std::size_t code = ' '; code <= '~'; ++code) {
        advances[code] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(code)));
    }
}

void LabelFonts::set(int font_size, const Font& file, const Font& directory) {
    const auto index = static_cast<std::size_t>(font_size);
    wanted_[index] = {file, directory};
    found_[2 * index].reset();
    found_[2 * index + 1].reset();
}

const LabelFont& LabelFonts::of(const TreeNode& node) {
    const std::size_t size = node.font_size;
    std::unique_ptr<LabelFont>& found = found_[2 * size + (node.directory ? 1 : 0)];
    if (found == nullptr) {
        const Font& wanted = node.directory ? wanted_[size].directory : wanted_[size].file;
        const FontStyle style = node.directory ? FontStyle::bold : FontStyle::normal;
        found = std::make_unique<LabelFont>((wanted ? wanted : standard_font(node.font_size, style)).qt());
    }
    return *found;
}

QSize LabelFonts::size(const TreeNode& node) {
    const LabelFont& font = of(node);
    const std::string& label = node.record->label;
    double width = 0;
    if (is_plain(label)) {
        for (const char c : label) {
            width += font.advances[static_cast<unsigned char>(c)];
        }
    } else {
        width = QFontMetricsF(font.font).horizontalAdvance(shown_label(label));
    }
    const int least = static_cast<int>(font.advances['m']);  // for a click
    const int mark = node.is_marked() ? mark_room : 0;
    return {std::max(static_cast<int>(std::ceil(width)), least) + 2 * padding + mark,
            font.height + 2 * line_room};
}
