// SPDX-License-Identifier: MIT
#include "terminal/scrollback.h"

#include "terminal/utf8.h"
#include "terminal/width.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace terminal {

namespace {

// Clusters are kept in the text as values above the greatest code point.
constexpr char32_t narrow_cluster_base = 0x110000;
constexpr char32_t wide_cluster_base = 0x130000;

char32_t encode(const Cell& cell) {
    if (!cell.is_cluster()) {
        return cell.character();
    }
    return cell.character() + (cell.is_wide() ? wide_cluster_base : narrow_cluster_base);
}

std::uint32_t decode(char32_t value) {
    if (value >= wide_cluster_base) {
        return (value - wide_cluster_base) | Cell::cluster | Cell::wide;
    }
    if (value >= narrow_cluster_base) {
        return (value - narrow_cluster_base) | Cell::cluster;
    }
    return character_width(value) == 2 ? value | Cell::wide : value;
}

bool is_blank(const Cell& cell) { return cell == Cell{}; }

std::uint64_t bits(const Cell& cell) { return std::bit_cast<std::uint64_t>(cell); }

/// What a run says of a cell, as bits to compare.
std::uint64_t attributes(const Cell& cell) {
    constexpr Cell all{Cell::guarded, 0xFFFF, 0xFFFF};
    return bits(cell) & std::bit_cast<std::uint64_t>(all);
}

}  // namespace

Scrollback::Scrollback(std::size_t row_limit, int columns)
    : row_limit_(std::min(row_limit, max_scrollback_rows)), columns_(columns) {}

void Scrollback::close() {
    ended_lines_ += open_ && !empty() ? 1 : 0;
    open_ = false;
    if (!empty()) {
        last().continued = false;
    }
}

void Scrollback::clear() {
    text_.clear();
    runs_.clear();
    pieces_.clear();
    first_ = last_found_ = 0;
    laid_out_.reset();
    begin_row_ = end_row_;
    open_ = false;
    ended_lines_ = 0;
}

/// Whether a row can be laid out as the next row of the last piece.
bool Scrollback::joins_last(std::span<const Cell> cells) const {
    if (!open_ || empty() || cells.empty()) {
        return false;
    }
    const auto length = static_cast<int>(cells.size());
    const bool full = tail_cells_ == columns_ || (tail_cells_ == columns_ - 1 && cells.front().is_wide());
    return full && pieces_.at(pieces_.end() - 1)->cells + length <= max_piece_cells;
}

void Scrollback::push(std::span<const Cell> cells, bool wrapped, std::uint64_t stamp) {
    while (!wrapped && !cells.empty() && is_blank(cells.back())) {
        cells = cells.first(cells.size() - 1);
    }
    if (!joins_last(cells)) {
        const Ordinal ordinal = pieces_.end();
        pieces_.extend(ordinal, 1);
        *pieces_.at(ordinal) = {text_.end(), runs_.end(), end_row_, stamp, 0, 0, 0, false, false};
    }
    laid_out_.reset();
    Piece& piece = last();
    append(piece, cells);
    piece.continued = open_ = wrapped;
    ended_lines_ += wrapped ? 0 : 1;
    piece.stamp = std::max(piece.stamp, stamp);
    tail_cells_ = static_cast<int>(cells.size());
    ++end_row_;
}

void Scrollback::trim() {
    for (int i = 0; i < 2 && end_row_ - begin_row_ > static_cast<RowId>(row_limit_); ++i) {
        ++begin_row_;
        const bool is_last = first_ + 1 == pieces_.end();
        const RowId piece_end = is_last ? end_row_ : pieces_.at(first_ + 1)->first_row;
        if (piece_end > begin_row_) {
            continue;
        }
        ended_lines_ -= pieces_.at(first_)->continued ? 0 : 1;
        ++first_;
        if (is_last) {
            text_.drop_before(text_.end());
            runs_.drop_before(runs_.end());
        } else {
            text_.drop_before(pieces_.at(first_)->text);
            runs_.drop_before(pieces_.at(first_)->runs);
        }
        pieces_.drop_before(first_);
    }
}

void Scrollback::append(Piece& piece, std::span<const Cell> cells) {
    if (cells.empty()) {
        return;
    }
    std::uint64_t any_bits = 0;
    for (const Cell& cell : cells) {
        any_bits |= bits(cell);
    }
    const Cell any = std::bit_cast<Cell>(any_bits);
    if (piece.run_count > 0 || attributes(any) != 0) {
        append_runs(piece, cells);
    }
    append_text(piece, cells, any.glyph);
    piece.cells = static_cast<std::uint16_t>(piece.cells + cells.size());
}

/// `glyphs` has the bits of all the cells' glyphs.
void Scrollback::append_text(Piece& piece, std::span<const Cell> cells, std::uint32_t glyphs) {
    const bool ascii = (glyphs & ~Cell::guarded) < 0x80;
    piece.text = text_.extend(piece.text, cells.size() * (ascii ? 1 : max_utf8_bytes));
    char* const begin = text_.at(piece.text) + piece.bytes;
    char* to = begin;
    if (ascii) {
        for (const Cell& cell : cells) {
            *to++ = static_cast<char>(cell.glyph & 0x7F);
        }
    } else {
        for (const Cell& cell : cells) {
            char* const end = write_utf8(encode(cell), to);
            to = cell.is_wide_tail() ? to : end;
        }
        piece.wide = piece.wide || (glyphs & Cell::wide) != 0;
    }
    piece.bytes = static_cast<std::uint16_t>(piece.bytes + (to - begin));
    text_.truncate(piece.text + piece.bytes);
}

/// Every cell is the end of its run so far, so that there is no branch where a run begins: that would be
/// foretold wrongly at each change of colour.
void Scrollback::append_runs(Piece& piece, std::span<const Cell> cells) {
    piece.runs = runs_.extend(piece.runs, cells.size() + 1);
    Run* const runs = runs_.at(piece.runs);
    std::size_t count = piece.run_count;
    if (count == 0 && piece.cells > 0) {
        runs[count++] = {piece.cells, false, 0, 0};
    }
    std::uint64_t before = ~attributes(cells.front());
    if (count > 0) {
        const Run& last_run = runs[count - 1];
        before = attributes({last_run.guarded ? Cell::guarded : 0, last_run.style, last_run.link});
    }
    std::uint16_t end = piece.cells;
    for (const Cell& cell : cells) {
        const std::uint64_t now = attributes(cell);
        count += now != before ? 1 : 0;
        before = now;
        runs[count - 1] = {++end, (cell.glyph & Cell::guarded) != 0, cell.style, cell.link};
    }
    piece.run_count = static_cast<std::uint16_t>(count);
    runs_.truncate(piece.runs + count);
}

std::optional<std::vector<Cell>> Scrollback::pop() {
    if (empty()) {
        return std::nullopt;
    }
    laid_out_.reset();
    const Piece& piece = last();
    std::vector<Cell> cells;
    unpack(piece, {0, 0}, {piece.cells, piece.bytes}, cells);
    text_.truncate(piece.text);
    runs_.truncate(piece.runs);
    end_row_ = piece.first_row;
    begin_row_ = std::min(begin_row_, end_row_);
    ended_lines_ -= piece.continued ? 0 : 1;
    pieces_.truncate(pieces_.end() - 1);
    open_ = !empty() && last().continued;
    tail_cells_ = empty() ? 0 : last_row_cells(last());
    return cells;
}

Scrollback::RowState Scrollback::row(RowId id, std::vector<Cell>& cells) const {
    assert(id >= begin_row_ && id < end_row_);
    const Ordinal ordinal = find_piece(id);
    const Piece& piece = *pieces_.at(ordinal);
    const Spot begin = find_row(ordinal, id - piece.first_row);
    const Spot end = next_row(piece, begin);
    unpack(piece, begin, end, cells);
    return {end.cell < piece.cells || piece.continued, piece.stamp};
}

void Scrollback::unpack(const Piece& piece, Spot begin, Spot end, std::vector<Cell>& cells) const {
    const auto length = static_cast<std::size_t>(end.cell - begin.cell);
    cells.assign(length, Cell{});
    if (length == 0) {
        return;
    }
    const char* from = text(piece) + begin.byte;
    if (piece.is_ascii()) {
        for (Cell& cell : cells) {
            cell.glyph = static_cast<std::uint8_t>(*from++);
        }
    } else {
        for (std::size_t i = 0; i < length; ++i) {
            cells[i].glyph = decode(take_utf8(from));
            if (cells[i].is_wide()) {
                cells[++i].glyph = Cell::wide_tail;
            }
        }
    }
    paint(piece, begin.cell, cells);
}

/// Puts the attributes on the cells unpacked from `begin` on.
void Scrollback::paint(const Piece& piece, int begin, std::vector<Cell>& cells) const {
    int from = 0;
    for (const Run& run : runs(piece)) {
        const int end = std::min(run.end - begin, static_cast<int>(cells.size()));
        const std::uint32_t guarded = run.guarded ? Cell::guarded : 0;
        for (; from < end; ++from) {
            Cell& cell = cells[static_cast<std::size_t>(from)];
            cell.glyph |= guarded;
            cell.style = run.style;
            cell.link = run.link;
        }
    }
}

void Scrollback::add_used(UsedIds& used) const {
    for (Ordinal ordinal = first_; ordinal < pieces_.end(); ++ordinal) {
        const Piece& piece = *pieces_.at(ordinal);
        for (const Run& run : runs(piece)) {
            used.styles[run.style] = true;
            used.links[run.link] = true;
        }
        if (piece.is_ascii()) {
            continue;
        }
        const char* from = text(piece);
        for (const char* const end = from + piece.bytes; from < end;) {
            const Cell cell{decode(take_utf8(from)), 0, 0};
            used.add(cell);
        }
    }
}

std::size_t Scrollback::memory() const { return text_.memory() + runs_.memory() + pieces_.memory(); }

}  // namespace terminal
