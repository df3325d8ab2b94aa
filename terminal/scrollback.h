// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/limits.h"
#include "terminal/record_store.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace terminal {

/// A position told by the text alone, so that it outlives a reflow: the number of logical lines before it,
/// and of cells before it in its line.
struct Mark {
    std::int64_t line = 0;
    std::int64_t offset = 0;
    bool operator==(const Mark&) const = default;
};

/// The rows that left the screen at its top. Kept as logical lines in UTF-8 with runs of attributes, a byte
/// for a plain ASCII character; rows are made from them for the width in force, so that a reflow only
/// renumbers. A line too long is kept in pieces, each of which begins a row.
class Scrollback {
  public:
    Scrollback(std::size_t row_limit, int columns);

    [[nodiscard]] RowId begin_row() const { return begin_row_; }
    [[nodiscard]] RowId end_row() const { return end_row_; }
    /// Whether the last row's line goes on below it.
    [[nodiscard]] bool open() const { return open_; }
    /// Ends the last row's line.
    void close();

    void push(std::span<const Cell> cells, bool wrapped, std::uint64_t stamp);
    /// Drops the oldest row when there are more than the limit; to be called after each row that scrolled
    /// off. Drops two as long as a resize has left too many.
    void trim();
    /// Takes the last line's last piece back. Nothing when there is none.
    std::optional<std::vector<Cell>> pop();
    void clear();

    struct RowState {
        bool wrapped;
        std::uint64_t stamp;
    };
    /// Unpacks a row between `begin_row` and `end_row`.
    RowState row(RowId id, std::vector<Cell>& cells) const;

    /// Makes rows of another width; drops nothing, even if there are now more rows than the limit.
    void reflow(int columns);

    [[nodiscard]] Mark mark(Position position) const;
    /// A mark counted from the end of the scrollback becomes one counted from its beginning.
    [[nodiscard]] Mark from_beginning(Mark mark) const;
    /// Where a mark is now. Behind the end: nothing, and the mark becomes one counted from there.
    std::optional<Position> find(Mark& mark) const;

    void add_used(UsedIds& used) const;
    [[nodiscard]] std::size_t memory() const;

  private:
    /// Attributes of consecutive cells. A piece without runs is plain.
    struct Run {
        std::uint16_t end;  // the piece's cells up to here
        bool guarded;
        StyleId style;
        LinkId link;
    };
    static_assert(sizeof(Run) == 8);
    struct Piece {
        std::uint64_t text;
        std::uint64_t runs;
        RowId first_row;
        std::uint64_t stamp;
        std::uint16_t cells;
        std::uint16_t bytes;
        std::uint16_t run_count;
        bool continued;  // its line goes on in the next piece, or on the screen
        bool wide;       // holds wide characters
        [[nodiscard]] bool is_ascii() const { return bytes == cells && !wide; }
    };
    static_assert(sizeof(Piece) == 40);
    /// A position within a piece.
    struct Spot {
        int cell;
        int byte;
    };
    using Ordinal = std::uint64_t;

    [[nodiscard]] Piece& last() { return *pieces_.at(pieces_.end() - 1); }
    [[nodiscard]] bool empty() const { return first_ == pieces_.end(); }
    [[nodiscard]] std::int64_t open_cells() const;
    [[nodiscard]] bool joins_last(std::span<const Cell> cells) const;
    void append(Piece& piece, std::span<const Cell> cells);
    void append_text(Piece& piece, std::span<const Cell> cells, std::uint32_t glyphs);
    void append_runs(Piece& piece, std::span<const Cell> cells);

    [[nodiscard]] Ordinal find_piece(RowId id) const;
    [[nodiscard]] const char* text(const Piece& piece) const;
    [[nodiscard]] std::span<const Run> runs(const Piece& piece) const;
    [[nodiscard]] Spot next_row(const Piece& piece, Spot from) const;
    [[nodiscard]] Spot find_row(Ordinal ordinal, RowId index) const;
    void lay_out(const Piece& piece, std::vector<Spot>& begins) const;
    [[nodiscard]] RowId count_rows(const Piece& piece) const;
    [[nodiscard]] int last_row_cells(const Piece& piece) const;
    void unpack(const Piece& piece, Spot begin, Spot end, std::vector<Cell>& cells) const;
    void paint(const Piece& piece, int begin, std::vector<Cell>& cells) const;

    std::size_t row_limit_;
    int columns_;
    RowId begin_row_ = 0;
    RowId end_row_ = 0;
    bool open_ = false;
    int tail_cells_ = 0;            // cells of the last row
    std::int64_t ended_lines_ = 0;  // lines that do not go on below the last row
    Ordinal first_ = 0;             // the oldest piece

    RecordStore<char, 65'536> text_;
    RecordStore<Run, 16'384> runs_;
    RecordStore<Piece, 1'024> pieces_;
    // Rows are asked for one after the other: the piece found last, and where the rows of one piece begin.
    mutable Ordinal last_found_ = 0;
    mutable std::optional<Ordinal> laid_out_;
    mutable std::vector<Spot> row_begins_;
};

}  // namespace terminal
