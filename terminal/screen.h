// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/geometry.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace terminal {

/// The character positions of one screen, and what can be done to them; knows no cursor and no modes. Rows
/// are a ring of headers over a block of cells, so that scrolling moves no cell. A row has cells up to the
/// last one written; what is behind is blank. Positions are the caller's to keep within the size, counts need
/// not be. Wide characters that are hit by half are blanked.
class Screen {
  public:
    /// `clock` gives the stamps: it is counted up for each change.
    Screen(Size size, RowId top, std::uint64_t& clock);

    [[nodiscard]] Size size() const { return size_; }
    [[nodiscard]] Region all() const { return {0, size_.rows, 0, size_.columns}; }
    /// Number of the first row.
    [[nodiscard]] RowId top() const { return top_; }
    [[nodiscard]] std::span<const Cell> cells(int row) const;
    [[nodiscard]] Cell cell(int row, int column) const;
    [[nodiscard]] bool wrapped(int row) const { return line(row).wrapped; }
    [[nodiscard]] std::uint64_t stamp(int row) const { return line(row).stamp; }
    /// Whether nothing was written in the row, or it was erased to plain blanks.
    [[nodiscard]] bool is_blank(int row) const;

    void set_wrapped(int row, bool wrapped);
    /// Puts a run of ASCII characters with the attributes of `pen` in a row; they must fit.
    void write_ascii(int row, int column, std::string_view text, Cell pen);
    /// Puts cells, wide ones with their tails, in a row; they must fit.
    void write(int row, int column, std::span<const Cell> cells);
    /// Puts cells as they are from the row's beginning on.
    void set_row(int row, std::span<const Cell> cells, bool wrapped);
    /// Changes a cell in place, for attributes and clusters; its width must stay.
    void replace(int row, int column, Cell cell);

    void erase(int row, int from, int to, Cell blank);
    /// As `erase`, but leaves the characters that have the flag `guard`. With no blank the others keep their
    /// attributes.
    void erase_unguarded(int row, int from, int to, std::uint32_t guard, std::optional<Cell> blank = {});
    void fill(const Region& region, Cell cell);
    /// Moves the cells from `column` up to `right` right or left by `count`; `blank` comes in.
    void insert_cells(int row, int column, int right, int count, Cell blank);
    void delete_cells(int row, int column, int right, int count, Cell blank);
    void scroll_up(const Region& region, int count, Cell blank);
    void scroll_down(const Region& region, int count, Cell blank);
    /// The top row goes; the others above `bottom` keep their number as they move up, and a blank row comes
    /// in at `bottom`.
    void advance(int bottom, Cell blank);
    /// Copies cells; the regions may overlap and must have one size.
    void copy(const Region& from, int to_row, int to_column);

    /// Empties the screen and gives it another size; the first row gets the number `top`.
    void reset(Size size, RowId top);
    /// Another size for a screen that does not flow: cut or blank on the right, and above by `drop_top`.
    void resize_fixed(Size size, int drop_top);

    /// What must always hold of a row, for assertions.
    [[nodiscard]] bool is_consistent(int row) const;

  private:
    struct Line {
        std::uint64_t stamp = 0;
        std::uint32_t slot = 0;    // which row of `cells_`
        std::uint16_t length = 0;  // cells that were written; the rest of the slot holds anything
        bool wrapped = false;
    };

    [[nodiscard]] std::size_t ring_index(int row) const {
        const int index = ring_top_ + row;
        return static_cast<std::size_t>(index < size_.rows ? index : index - size_.rows);
    }
    [[nodiscard]] Line& line(int row) { return lines_[ring_index(row)]; }
    [[nodiscard]] const Line& line(int row) const { return lines_[ring_index(row)]; }
    [[nodiscard]] Cell* data(const Line& line) {
        return cells_.data() + static_cast<std::size_t>(line.slot) * static_cast<std::size_t>(size_.columns);
    }
    [[nodiscard]] const Cell* data(const Line& line) const {
        return cells_.data() + static_cast<std::size_t>(line.slot) * static_cast<std::size_t>(size_.columns);
    }
    void touch(Line& line) { line.stamp = ++clock_; }
    void extend(Line& line, int length);
    void split(Line& line, int column);
    void open_gap(Line& line, int from, int to);
    /// The cells of a line whose cells between `column` and `right` are about to move apart or together at
    /// `seam`: wide characters across these edges are erased first.
    Cell* opened(Line& line, int column, int right, int seam);
    void written(Line& line, int end);
    void clear(Line& line, Cell blank);
    void rotate(int top, int bottom, int count);

    Size size_;
    RowId top_;
    std::uint64_t& clock_;
    int ring_top_ = 0;
    std::vector<Line> lines_;
    std::vector<Cell> cells_;
    std::vector<Line> scratch_;
};

}  // namespace terminal
