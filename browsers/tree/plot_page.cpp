// SPDX-License-Identifier: MIT
#include "browsers/tree/plot_page.h"

#include <algorithm>
#include <utility>

#include <sys/stat.h>

namespace {

// Around the tree on the page, in points.
constexpr int left_margin = 50;
constexpr int bottom_margin = 70;
constexpr int line_gap = 4;  ///< between two labels

/// A part of a number that may be too large for `int` on the way.
int share(int number, int numerator, int denominator) {
    return static_cast<int>(static_cast<long long>(number) * numerator / denominator);
}

int percent_of(int number, int percent) { return share(number, percent, 100); }

/// Turns pixels of the canvas into points of the page.
class Placing {
  public:
    Placing(const TreeExtents& extents, PlotScale scale)
        : percent_(scale.percent),
          left_(percent_of(extents.xmin_tree, percent_)),
          height_(percent_of(extents.ymax_tree + scale.font_size + line_gap, percent_)),
          half_line_(share(scale.font_size + line_gap, percent_, 200)) {}

    [[nodiscard]] PlotPoint label(PlotPoint place) const {
        const PlotPoint point = on_page(place);
        return {point.x, point.y - half_line_};
    }
    /// A line begins so many points left of the parent's right edge as the parent's label has characters.
    [[nodiscard]] PlotLine line(const PlotLine& link, int parent_characters) const {
        PlotLine line{on_page(link.from), on_page(link.to)};
        line.from.x -= percent_of(parent_characters, percent_);
        return line;
    }

  private:
    [[nodiscard]] PlotPoint on_page(PlotPoint pixels) const {
        return {percent_of(pixels.x, percent_) - left_ + left_margin,
                height_ - percent_of(pixels.y, percent_) + bottom_margin};
    }

    int percent_;
    int left_;
    int height_;
    int half_line_;
};

}  // namespace

int label_characters(std::string_view label) {
    return static_cast<int>(std::ranges::count_if(
        label, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

TreeExtents find_tree_size(const std::vector<PlotNode>& nodes, int font_size) {
    TreeExtents extents;
    for (const PlotNode& node : nodes) {
        const auto right = static_cast<int>(node.place.x + 0.6 * (label_characters(node.label) * font_size));
        extents.xmin_tree = std::min(extents.xmin_tree, node.place.x);
        extents.ymin_tree = std::min(extents.ymin_tree, node.place.y);
        extents.xmax_tree = std::max(extents.xmax_tree, right);
        extents.ymax_tree = std::max(extents.ymax_tree, node.place.y);
    }
    return extents;
}

bool PlotSize::fits(const Paper& paper) const {
    return width <= paper.short_side - left_margin && height <= paper.long_side - bottom_margin;
}

PlotSize plot_size(const TreeExtents& extents, int percent) {
    return {percent_of(extents.xmax_tree - extents.xmin_tree, percent),
            percent_of(extents.ymax_tree - extents.ymin_tree, percent)};
}

int millimetres(int points) { return static_cast<int>(points * 25.4 / 72); }

std::vector<PlotMark> plot_marks(const std::vector<PlotNode>& nodes, const TreeExtents& extents,
                                 PlotScale scale, Progress& progress) {
    const Placing placing(extents, scale);
    std::vector<PlotMark> marks;
    for (const PlotNode& node : nodes) {
        struct stat status {};
        if (stat(node.path.c_str(), &status) == 0) {
            PlotMark mark{node.label, S_ISDIR(status.st_mode), placing.label(node.place), std::nullopt};
            if (node.link && node.link->from != node.link->to) {
                mark.line = placing.line(*node.link, node.parent_characters);
            }
            marks.push_back(std::move(mark));
        }
        if (!progress.next()) {
            break;
        }
    }
    return marks;
}

std::vector<TitleText> title_texts(const PlotPage& page) {
    using enum TitleText::Kind;
    constexpr int heading_line = 42;
    constexpr int value_line = 23;
    const auto column = [](int left) { return left + 2; };
    const int root = column(title_frame.corner.x);
    const int user = column(title_frame.upright[0]);
    const int date = column(title_frame.upright[1]);
    return {{"Root Directory", {root, heading_line}, heading},
            {"For", {user, heading_line}, heading},
            {"Date", {date, heading_line}, heading},
            {page.root_directory, {root, value_line}, value},
            {page.user, {user, value_line}, value},
            {page.date + "   " + page.time, {date, value_line}, value}};
}

Drawing drawing_of(const PlotPage& page, const Paper& paper) {
    constexpr double frame_line = 0.5;
    constexpr double link_line = 0.25;
    const auto [corner, width, height, upright] = title_frame;
    const int top = corner.y + height;
    const int right = corner.x + width;
    Drawing drawing{.title = page.title, .width = paper.short_side, .height = paper.long_side};
    drawing.lines = {{corner.x, corner.y, right, corner.y, frame_line},
                     {right, corner.y, right, top, frame_line},
                     {right, top, corner.x, top, frame_line},
                     {corner.x, top, corner.x, corner.y, frame_line}};
    for (const int x : upright) {
        drawing.lines.push_back({x, corner.y, x, top, frame_line});
    }
    for (const TitleText& text : title_texts(page)) {
        const bool heading = text.kind == TitleText::Kind::heading;
        drawing.texts.push_back({text.place.x, text.place.y, heading ? heading_size : value_size,
                                 heading ? DrawnFont::serif : DrawnFont::sans, text.text});
    }
    for (const PlotMark& mark : page.marks) {
        drawing.texts.push_back({mark.place.x, mark.place.y, page.label_size,
                                 mark.is_directory ? DrawnFont::sans_bold : DrawnFont::sans, mark.label});
        if (mark.line) {
            const auto& [from, to] = *mark.line;
            drawing.lines.push_back({from.x, from.y, to.x, to.y, link_line});
        }
    }
    return drawing;
}
