// SPDX-License-Identifier: MIT
#include "toolkit/tree/canvas_painter.h"

#include "toolkit/tree/label_fonts.h"
#include "toolkit/tree/node_tree.h"
#include "toolkit/tree/shown_label.h"
#include "toolkit/tree/siblings.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr double corner = 3;  // pixels; of a label's background

QColor between(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

const TreeNode& tree_node(const LayoutNode& node) { return static_cast<const TreeNode&>(node); }

/// The children of a node whose links are to be painted: those in the view, and of the others as many as can
/// be told from each other. Links to 100,000 children would run into one surface anyway.
class LinkedChildren {
  public:
    LinkedChildren(const LayoutNode& parent, const TreeArea& label, const QRect& view)
        : top_(parent.children),
          begin_(label.y - parent.label_top + parent.children_top),
          middle_(label.y + label.height / 2),
          view_(view) {}

    /// The middles of their labels' left edges, from the top of the tree.
    [[nodiscard]] std::vector<int> middles() {
        if (middle_ > view_.top()) {
            add_beyond(view_.top());
        }
        add_in_view();
        if (middle_ < view_.bottom()) {
            add_beyond(view_.bottom());
        }
        return std::move(middles_);
    }

  private:
    void add(LayoutNode& child) {
        if (&child != last_added_) {
            last_added_ = &child;
            middles_.push_back(begin_ + siblings::offset_of(child) + child.label_top + child.height / 2);
        }
    }
    void add_in_view() {
        LayoutNode* child = siblings::at_offset(top_, view_.top() - begin_);
        for (; child != nullptr; child = siblings::next(*child)) {
            if (begin_ + siblings::offset_of(*child) > view_.bottom()) {
                return;
            }
            add(*child);
        }
    }
    /// A link that crosses the edge of the view a pixel further leads this far beyond.
    void add_beyond(int edge) {
        const double height = siblings::height(top_);
        for (int step = 1; step <= TreeLayout::link_length; ++step) {
            const double far = middle_ + (double{1} * edge - middle_) * TreeLayout::link_length / step;
            const double offset = std::clamp(far - begin_, 0.0, height);
            add(*siblings::at_offset(top_, static_cast<int>(offset)));
        }
    }

    LayoutNode* top_;
    int begin_;   ///< of the first child's block
    int middle_;  ///< of the parent's label
    QRect view_;
    LayoutNode* last_added_ = nullptr;
    std::vector<int> middles_;
};

}  // namespace

void CanvasPainter::paint(const TreeLayout& layout, const QRect& area) {
    const TreeArea wanted{area.x(), area.y(), area.width(), area.height()};
    std::vector<std::pair<const TreeNode*, TreeArea>> nodes;
    layout.visit(wanted, [&](LayoutNode& node, const TreeArea& label) {
        nodes.emplace_back(&tree_node(node), label);
    });
    const QPalette& palette = look_.palette;
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(between(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.45));
    for (const auto& [node, label] : nodes) {
        paint_links(*node, label, area);
    }
    for (const auto& [node, label] : nodes) {
        if (label.touches(wanted)) {
            paint_node(*node, label);
        }
    }
    if (!look_.band.isNull()) {
        paint_band();
    }
}

void CanvasPainter::paint_links(const TreeNode& parent, const TreeArea& label, const QRect& area) {
    const int from = label.right();
    const int to = from + TreeLayout::link_length;
    if (parent.children == nullptr || from > area.right() || to < area.left()) {
        return;
    }
    for (const int middle : LinkedChildren(parent, label, area).middles()) {
        paint_link({from, label.y + label.height / 2}, {to, middle}, area);
    }
}

/// Cut to the area's height by ourselves: a painter does not take lines of a million pixels.
void CanvasPainter::paint_link(QPoint from, QPoint to, const QRect& area) {
    constexpr int beyond = 2;  // the cut is not to be seen
    const int top = area.top() - beyond;
    const int bottom = area.bottom() + beyond;
    if (std::max(from.y(), to.y()) < top || std::min(from.y(), to.y()) > bottom) {
        return;
    }
    const auto at = [&](int y) {
        if (from.y() == to.y()) {
            return QPointF(to.x(), y);
        }
        return QPointF(from.x() + double(to.x() - from.x()) * (y - from.y()) / (to.y() - from.y()), y);
    };
    const auto cut = [&](QPoint end) {
        const int y = std::clamp(end.y(), top, bottom);
        return (y == end.y() ? QPointF(end) : at(y)) + QPointF(0.5, 0.5);
    };
    painter_.drawLine(cut(from), cut(to));
}

void CanvasPainter::paint_node(const TreeNode& node, const TreeArea& label) {
    const QPalette& palette = look_.palette;
    const QRectF box(label.x, label.y, label.width, label.height);
    const bool selected =
        node.selected || look_.band.intersects({label.x, label.y, label.width, label.height});
    const QColor text = palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    painter_.save();
    if (selected) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(palette.color(QPalette::Highlight));
        painter_.drawRoundedRect(box, corner, corner);
    }
    if (&node == look_.framed) {
        painter_.setPen(selected ? text : palette.color(QPalette::Highlight));
        painter_.setBrush(Qt::NoBrush);
        const double inside = selected ? 1.5 : 0.5;
        painter_.drawRoundedRect(box.adjusted(inside, inside, -inside, -inside), corner, corner);
    }
    const LabelFont& font = fonts_.of(node);
    painter_.setPen(text);
    painter_.setFont(font.font);
    painter_.drawText(QPointF(label.x + LabelFonts::padding, label.y + LabelFonts::line_room + font.ascent),
                      shown_label(node.record->label));
    if (node.is_marked()) {
        paint_mark(label, text);
    }
    painter_.restore();
}

/// A small triangle: there may be more to the right.
void CanvasPainter::paint_mark(const TreeArea& label, const QColor& colour) {
    constexpr double half_height = 3.5;
    constexpr double width = 5;
    const QPointF tip(label.right() - LabelFonts::padding + 1, label.y + label.height / 2.0);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(colour);
    painter_.drawPolygon(
        QPolygonF({tip, tip - QPointF(width, half_height), tip - QPointF(width, -half_height)}));
}

void CanvasPainter::paint_band() {
    QColor colour = look_.palette.color(QPalette::Highlight);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(colour);
    colour.setAlphaF(0.15F);
    painter_.setBrush(colour);
    painter_.drawRect(look_.band);
}
