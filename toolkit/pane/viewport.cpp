// SPDX-License-Identifier: MIT
#include "toolkit/pane/viewport.h"

#include <algorithm>
#include <cmath>

using terminal::Position;
using terminal::RowId;

namespace {

constexpr terminal::Size smallest{2, 1};

}  // namespace

RowId Viewport::top_row() const {
    return follows_output_ ? terminal_.screen_top()
                           : std::clamp(top_, terminal_.first_row(), terminal_.screen_top());
}

void Viewport::scroll_to(RowId top) {
    top_ = std::clamp(top, terminal_.first_row(), terminal_.screen_top());
    follows_output_ = top_ == terminal_.screen_top();
}

void Viewport::show_row(RowId row) {
    const int rows = terminal_.size().rows;
    if (row < top_row() || row >= top_row() + rows) {
        scroll_to(row - rows / 2);
    }
}

void Viewport::keep_to_text() { follows_output_ = follows_output_ || top_ >= terminal_.screen_top(); }

QSize Viewport::area_for(terminal::Size size) const {
    return {size.columns * cell_.width() + 2 * margin, size.rows * cell_.height() + 2 * margin};
}

terminal::Size Viewport::room_for_text() const {
    return {std::max(smallest.columns, (area_.width() - 2 * margin) / cell_.width()),
            std::max(smallest.rows, (area_.height() - 2 * margin) / cell_.height())};
}

QRect Viewport::line_area(int line) const {
    return {0, margin + line * cell_.height(), area_.width(), cell_.height()};
}

QRect Viewport::cell_area(Position position) const {
    const auto line = static_cast<int>(position.row - top_row());
    return {QPoint(margin + position.column * cell_.width(), margin + line * cell_.height()), cell_};
}

Position Viewport::position_at(QPointF point) const {
    const terminal::Size size = terminal_.size();
    const auto cell = [](qreal at, int cell_size, int count) {
        return std::clamp(static_cast<int>(std::floor((at - margin) / cell_size)), 0, count - 1);
    };
    return {top_row() + cell(point.y(), cell_.height(), size.rows),
            cell(point.x(), cell_.width(), size.columns)};
}

Position Viewport::boundary_at(QPointF point) const {
    const Position cell = position_at(point);
    const QRect area = cell_area(cell);
    const bool behind = point.x() >= area.x() + area.width() / 2.0;
    return {cell.row, cell.column + (behind ? 1 : 0)};
}
