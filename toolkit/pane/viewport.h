// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <QPointF>
#include <QRect>
#include <QSize>

/// The part of a terminal that is seen: which rows, and where on the widget. Follows the output until its
/// user scrolls away from it.
class Viewport {
  public:
    static constexpr int margin = 4;  ///< pixels round the text

    explicit Viewport(const terminal::Terminal& terminal) : terminal_(terminal) {}

    void set_cell(QSize cell) { cell_ = cell; }
    void set_area(QSize area) { area_ = area; }

    // Rows.
    [[nodiscard]] terminal::RowId top_row() const;
    void scroll_to(terminal::RowId top);
    void scroll_lines(int lines) { scroll_to(top_row() + lines); }
    void scroll_to_bottom() { scroll_to(terminal_.screen_top()); }
    /// Brings a row into view, in the middle if it is not yet to be seen.
    void show_row(terminal::RowId row);
    /// After a resize, which has moved the top row there.
    void top_row_moved(terminal::RowId top) { top_ = top; }
    /// Follows the output again where the text was cleared.
    void keep_to_text();

    // Geometry, in the widget's coordinates.
    [[nodiscard]] QSize cell() const { return cell_; }
    /// The area that so many characters take, with the margin.
    [[nodiscard]] QSize area_for(terminal::Size size) const;
    /// The characters that the area has room for, at least a few.
    [[nodiscard]] terminal::Size room_for_text() const;
    /// A line of the view, in the area's full width.
    [[nodiscard]] QRect line_area(int line) const;
    /// Also of a cell scrolled out of view.
    [[nodiscard]] QRect cell_area(terminal::Position position) const;
    [[nodiscard]] terminal::Position position_at(QPointF point) const;
    /// The boundary between characters nearest to a point.
    [[nodiscard]] terminal::Position boundary_at(QPointF point) const;

  private:
    const terminal::Terminal& terminal_;
    QSize cell_{1, 1};
    QSize area_;
    bool follows_output_ = true;
    terminal::RowId top_ = 0;  ///< when not following
};
