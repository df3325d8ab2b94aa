// SPDX-License-Identifier: MIT
#include "terminal/screen.h"

#include <algorithm>
#include <cassert>

namespace terminal {

Screen::Screen(Size size, RowId top, std::uint64_t& clock) : size_(size), top_(top), clock_(clock) {
    reset(size, top);
}

void Screen::reset(Size size, RowId top) {
    size_ = size;
    top_ = top;
    ring_top_ = 0;
    const auto rows = static_cast<std::size_t>(size.rows);
    cells_.assign(rows * static_cast<std::size_t>(size.columns), Cell{});
    lines_.assign(rows, Line{});
    for (std::size_t i = 0; i < rows; ++i) {
        lines_[i].slot = static_cast<std::uint32_t>(i);
        touch(lines_[i]);
    }
}

std::span<const Cell> Screen::cells(int row) const {
    const Line& at = line(row);
    return {data(at), at.length};
}

Cell Screen::cell(int row, int column) const {
    const Line& at = line(row);
    return column < at.length ? data(at)[column] : Cell{};
}

bool Screen::is_blank(int row) const {
    return !wrapped(row) && std::ranges::all_of(cells(row), [](const Cell& cell) { return cell == Cell{}; });
}

void Screen::set_wrapped(int row, bool wrapped) { line(row).wrapped = wrapped; }

/// Makes the row at least `length` cells long.
void Screen::extend(Line& line, int length) {
    if (line.length < length) {
        std::fill(data(line) + line.length, data(line) + length, Cell{});
        line.length = static_cast<std::uint16_t>(length);
    }
}

/// Blanks a wide character that stands across the left edge of `column`.
void Screen::split(Line& line, int column) {
    Cell* const cells = data(line);
    if (column < line.length && cells[column].is_wide_tail()) {
        cells[column - 1].glyph = cells[column].glyph = 0;
    }
}

/// Prepares the cells `from` up to `to` to be overwritten: the row reaches to their beginning, and no wide
/// character stands across the edges.
void Screen::open_gap(Line& line, int from, int to) {
    extend(line, from);
    split(line, from);
    split(line, to);
}

void Screen::write_ascii(int row, int column, std::string_view text, Cell pen) {
    Line& at = line(row);
    const int end = column + static_cast<int>(text.size());
    assert(end <= size_.columns);
    open_gap(at, column, end);
    Cell* to = data(at) + column;
    for (const char character : text) {
        *to++ = {pen.glyph | static_cast<std::uint8_t>(character), pen.style, pen.link};
    }
    written(at, end);
}

/// The row now reaches to `end` at least. Whether it wraps must be seen anew when its last column changes.
void Screen::written(Line& line, int end) {
    line.length = std::max(line.length, static_cast<std::uint16_t>(end));
    line.wrapped = line.wrapped && end < size_.columns;
    touch(line);
}

void Screen::write(int row, int column, std::span<const Cell> cells) {
    Line& at = line(row);
    const int end = column + static_cast<int>(cells.size());
    assert(end <= size_.columns);
    open_gap(at, column, end);
    std::ranges::copy(cells, data(at) + column);
    written(at, end);
}

void Screen::set_row(int row, std::span<const Cell> cells, bool wrapped) {
    Line& at = line(row);
    std::ranges::copy(cells, data(at));
    at.length = static_cast<std::uint16_t>(cells.size());
    at.wrapped = wrapped;
    touch(at);
}

void Screen::replace(int row, int column, Cell cell) {
    Line& at = line(row);
    extend(at, column + 1);
    assert(data(at)[column].is_wide() == cell.is_wide());
    data(at)[column] = cell;
    touch(at);
}

void Screen::erase(int row, int from, int to, Cell blank) {
    Line& at = line(row);
    if (from >= to) {
        return;
    }
    if (blank == Cell{} && to >= at.length) {
        if (from < at.length) {
            open_gap(at, from, at.length);
            at.length = static_cast<std::uint16_t>(from);
        }
    } else {
        open_gap(at, from, to);
        std::fill(data(at) + from, data(at) + to, blank);
        at.length = std::max(at.length, static_cast<std::uint16_t>(to));
    }
    if (to == size_.columns) {
        at.wrapped = false;
    }
    touch(at);
}

void Screen::erase_unguarded(int row, int from, int to, std::uint32_t guard, std::optional<Cell> blank) {
    Line& at = line(row);
    if (blank && *blank != Cell{}) {
        extend(at, to);
    }
    to = std::min<int>(to, at.length);
    if (from >= to) {
        return;
    }
    open_gap(at, from, to);
    for (Cell& cell : std::span(data(at) + from, data(at) + to)) {
        if ((cell.glyph & guard) == 0) {
            cell = blank.value_or(Cell{0, cell.style, cell.link});
        }
    }
    touch(at);
}

void Screen::fill(const Region& region, Cell cell) {
    for (int row = region.top; row < region.bottom; ++row) {
        erase(row, region.left, region.right, cell);
    }
}

Cell* Screen::opened(Line& line, int column, int right, int seam) {
    extend(line, right);
    open_gap(line, column, right);
    split(line, seam);
    return data(line);
}

void Screen::insert_cells(int row, int column, int right, int count, Cell blank) {
    count = std::min(count, right - column);
    if (count <= 0) {
        return;
    }
    Line& at = line(row);
    Cell* const cells = opened(at, column, right, right - count);
    std::move_backward(cells + column, cells + right - count, cells + right);
    std::fill(cells + column, cells + column + count, blank);
    touch(at);
}

void Screen::delete_cells(int row, int column, int right, int count, Cell blank) {
    count = std::min(count, right - column);
    if (count <= 0) {
        return;
    }
    Line& at = line(row);
    Cell* const cells = opened(at, column, right, column + count);
    std::move(cells + column + count, cells + right, cells + column);
    std::fill(cells + right - count, cells + right, blank);
    at.wrapped = false;
    touch(at);
}

void Screen::clear(Line& line, Cell blank) {
    line.wrapped = false;
    line.length = 0;
    if (blank != Cell{}) {
        std::fill_n(data(line), size_.columns, blank);
        line.length = static_cast<std::uint16_t>(size_.columns);
    }
    touch(line);
}

/// Moves the rows `top` up to `bottom` up by `count`, round the end.
void Screen::rotate(int top, int bottom, int count) {
    const int height = bottom - top;
    scratch_.clear();
    for (int i = 0; i < height; ++i) {
        scratch_.push_back(line(top + i));
    }
    for (int i = 0; i < height; ++i) {
        line(top + i) = scratch_[static_cast<std::size_t>((i + count) % height)];
        touch(line(top + i));
    }
}

void Screen::advance(int bottom, Cell blank) {
    ring_top_ = ring_top_ + 1 == size_.rows ? 0 : ring_top_ + 1;
    ++top_;
    if (bottom < size_.rows) {  // the rows below stay where they are seen
        rotate(bottom - 1, size_.rows, size_.rows - bottom);
        set_wrapped(bottom - 2, false);
    }
    clear(line(bottom - 1), blank);
    ++clock_;
}

void Screen::scroll_up(const Region& region, int count, Cell blank) {
    count = std::min(count, region.height());
    if (count <= 0) {
        return;
    }
    if (region.width() < size_.columns) {
        copy({region.top + count, region.bottom, region.left, region.right}, region.top, region.left);
        fill({region.bottom - count, region.bottom, region.left, region.right}, blank);
        return;
    }
    if (region.top > 0) {
        set_wrapped(region.top - 1, false);
    }
    set_wrapped(region.bottom - 1, false);
    rotate(region.top, region.bottom, count);
    for (int i = 0; i < count; ++i) {
        clear(line(region.bottom - 1 - i), blank);
    }
}

void Screen::scroll_down(const Region& region, int count, Cell blank) {
    count = std::min(count, region.height());
    if (count <= 0) {
        return;
    }
    if (region.width() < size_.columns) {
        copy({region.top, region.bottom - count, region.left, region.right}, region.top + count, region.left);
        fill({region.top, region.top + count, region.left, region.right}, blank);
        return;
    }
    if (region.top > 0) {
        set_wrapped(region.top - 1, false);
    }
    rotate(region.top, region.bottom, region.height() - count);
    for (int i = 0; i < count; ++i) {
        clear(line(region.top + i), blank);
    }
    set_wrapped(region.bottom - 1, false);
}

void Screen::copy(const Region& from, int to_row, int to_column) {
    std::vector<Cell> moved(static_cast<std::size_t>(std::max(from.width(), 0)));
    const bool downwards = to_row > from.top;  // then the last row goes first
    for (int i = 0; i < from.height(); ++i) {
        const int offset = downwards ? from.height() - 1 - i : i;
        for (int column = from.left; column < from.right; ++column) {
            moved[static_cast<std::size_t>(column - from.left)] = cell(from.top + offset, column);
        }
        if (moved.front().is_wide_tail()) {
            moved.front().glyph = 0;
        }
        if (moved.back().is_wide()) {
            moved.back().glyph = 0;
        }
        Line& to = line(to_row + offset);
        const int end = to_column + from.width();
        open_gap(to, to_column, end);
        extend(to, end);
        std::ranges::copy(moved, data(to) + to_column);
        to.wrapped = to.wrapped && end < size_.columns;
        touch(to);
    }
}

void Screen::resize_fixed(Size size, int drop_top) {
    const Screen before = *this;
    reset(size, top_ + drop_top);
    const int rows = std::min(size.rows, before.size_.rows - drop_top);
    for (int row = 0; row < rows; ++row) {
        auto cells = before.cells(row + drop_top);
        cells = cells.first(std::min(cells.size(), static_cast<std::size_t>(size.columns)));
        set_row(row, cells, before.wrapped(row + drop_top) && size.columns == before.size_.columns);
        if (!cells.empty() && cells.back().is_wide()) {
            data(line(row))[cells.size() - 1].glyph = 0;
        }
    }
}

bool Screen::is_consistent(int row) const {
    const auto row_cells = cells(row);
    if (row_cells.size() > static_cast<std::size_t>(size_.columns)) {
        return false;
    }
    bool expect_tail = false;
    for (const Cell& cell : row_cells) {
        if (cell.is_wide_tail() != expect_tail) {
            return false;
        }
        expect_tail = cell.is_wide();
    }
    return !expect_tail;
}

}  // namespace terminal
