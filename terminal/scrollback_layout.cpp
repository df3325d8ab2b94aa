// SPDX-License-Identifier: MIT
#include "terminal/scrollback.h"
#include "terminal/utf8.h"
#include "terminal/width.h"

#include <algorithm>

// How the lines of the scrollback fall into rows of the width in force.

namespace terminal {

namespace {

constexpr char32_t first_own_value = 0x110000;
constexpr char32_t first_wide_cluster = 0x130000;

int cells_of(char32_t value) {
    if (value >= first_own_value) {
        return value >= first_wide_cluster ? 2 : 1;
    }
    return character_width(value) == 2 ? 2 : 1;
}

}  // namespace

const char* Scrollback::text(const Piece& piece) const {
    return piece.bytes == 0 ? "" : text_.at(piece.text);
}

std::span<const Scrollback::Run> Scrollback::runs(const Piece& piece) const {
    if (piece.run_count == 0) {
        return {};
    }
    return {runs_.at(piece.runs), piece.run_count};
}

Scrollback::Ordinal Scrollback::find_piece(RowId id) const {
    const auto holds = [this, id](Ordinal ordinal) {
        return ordinal >= first_ && ordinal < pieces_.end() && pieces_.at(ordinal)->first_row <= id &&
               (ordinal + 1 == pieces_.end() || pieces_.at(ordinal + 1)->first_row > id);
    };
    for (const Ordinal near : {last_found_, last_found_ + 1}) {
        if (holds(near)) {
            return last_found_ = near;
        }
    }
    Ordinal low = first_;
    Ordinal high = pieces_.end();
    while (high - low > 1) {
        const Ordinal middle = low + (high - low) / 2;
        (pieces_.at(middle)->first_row <= id ? low : high) = middle;
    }
    return last_found_ = low;
}

/// Where the row ends that begins at `from`.
Scrollback::Spot Scrollback::next_row(const Piece& piece, Spot from) const {
    if (piece.is_ascii()) {
        const int length = std::min<int>(columns_, piece.cells - from.cell);
        return {from.cell + length, from.byte + length};
    }
    Spot spot = from;
    const char* const begin = text(piece);
    const char* at = begin + from.byte;
    while (spot.cell < piece.cells) {
        const int cells = cells_of(take_utf8(at));
        if (spot.cell + cells - from.cell > columns_) {
            break;
        }
        spot.cell += cells;
        spot.byte = static_cast<int>(at - begin);
    }
    return spot;
}

void Scrollback::lay_out(const Piece& piece, std::vector<Spot>& begins) const {
    begins.assign(1, {0, 0});
    for (Spot end = next_row(piece, {0, 0}); end.cell < piece.cells; end = next_row(piece, end)) {
        begins.push_back(end);
    }
}

Scrollback::Spot Scrollback::find_row(Ordinal ordinal, RowId index) const {
    const Piece& piece = *pieces_.at(ordinal);
    if (piece.is_ascii()) {
        const int cell = static_cast<int>(index) * columns_;
        return {cell, cell};
    }
    if (laid_out_ != ordinal) {
        lay_out(piece, row_begins_);
        laid_out_ = ordinal;
    }
    return row_begins_[static_cast<std::size_t>(index)];
}

RowId Scrollback::count_rows(const Piece& piece) const {
    if (!piece.wide) {
        return std::max(1, (piece.cells + columns_ - 1) / columns_);
    }
    RowId rows = 1;
    for (Spot end = next_row(piece, {0, 0}); end.cell < piece.cells; end = next_row(piece, end)) {
        ++rows;
    }
    return rows;
}

int Scrollback::last_row_cells(const Piece& piece) const {
    std::vector<Spot> begins;
    lay_out(piece, begins);
    return piece.cells - begins.back().cell;
}

void Scrollback::reflow(int columns) {
    columns_ = columns;
    laid_out_.reset();
    if (empty()) {
        begin_row_ = end_row_;
        return;
    }
    RowId row = pieces_.at(first_)->first_row;
    begin_row_ = row;
    for (Ordinal ordinal = first_; ordinal < pieces_.end(); ++ordinal) {
        Piece& piece = *pieces_.at(ordinal);
        piece.first_row = row;
        row += count_rows(piece);
    }
    end_row_ = row;
    tail_cells_ = last_row_cells(last());
}

Mark Scrollback::mark(Position position) const {
    const Ordinal found = find_piece(position.row);
    const Piece& piece = *pieces_.at(found);
    const Spot begin = find_row(found, position.row - piece.first_row);
    const Spot end = next_row(piece, begin);
    const bool ends_line = end.cell == piece.cells && !piece.continued;
    const int length = end.cell - begin.cell;
    Mark mark{0, begin.cell + (ends_line ? position.column : std::min(position.column, length))};
    std::int64_t line_cells = 0;
    for (Ordinal ordinal = first_; ordinal < found; ++ordinal) {
        const Piece& before = *pieces_.at(ordinal);
        mark.line += before.continued ? 0 : 1;
        line_cells = before.continued ? line_cells + before.cells : 0;
    }
    mark.offset += line_cells;
    return mark;
}

/// The cells of the line that goes on below the last row.
std::int64_t Scrollback::open_cells() const {
    std::int64_t cells = 0;
    for (Ordinal end = pieces_.end(); end > first_ && pieces_.at(end - 1)->continued; --end) {
        cells += pieces_.at(end - 1)->cells;
    }
    return cells;
}

Mark Scrollback::from_beginning(Mark mark) const {
    return {mark.line + ended_lines_, mark.offset + (mark.line == 0 ? open_cells() : 0)};
}

std::optional<Position> Scrollback::find(Mark& mark) const {
    if (mark.line > ended_lines_ || (mark.line == ended_lines_ && mark.offset >= open_cells())) {
        mark.line -= ended_lines_;
        mark.offset -= mark.line == 0 ? open_cells() : 0;
        return std::nullopt;
    }
    for (Ordinal ordinal = first_; ordinal < pieces_.end(); ++ordinal) {
        const Piece& piece = *pieces_.at(ordinal);
        const bool here = mark.line == 0 && (!piece.continued || mark.offset < piece.cells);
        if (!here) {
            mark.offset -= mark.line == 0 ? piece.cells : 0;
            mark.line -= piece.continued ? 0 : 1;
            continue;
        }
        Spot begin{0, 0};
        RowId row = piece.first_row;
        for (Spot end = next_row(piece, begin); end.cell <= mark.offset && end.cell < piece.cells; ++row) {
            begin = end;
            end = next_row(piece, begin);
        }
        return Position{row, static_cast<int>(std::min<std::int64_t>(mark.offset - begin.cell, columns_))};
    }
    return std::nullopt;
}

}  // namespace terminal
