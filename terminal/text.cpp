// SPDX-License-Identifier: MIT
#include "terminal/text.h"

#include "terminal/limits.h"
#include "terminal/utf8.h"

#include <algorithm>

#include <utf8proc.h>

namespace terminal {

namespace {

constexpr int whole_row = max_columns;

RowId line_begin(const Terminal& terminal, RowId row) {
    while (row > terminal.first_row() && terminal.row(row - 1).wrapped) {
        --row;
    }
    return row;
}

bool is_space(const Cell& cell) {
    return !cell.is_cluster() && !cell.is_wide_tail() && (cell.character() == 0 || cell.character() == U' ');
}

/// The cells of a row without the blanks at the end of its line.
std::span<const Cell> without_trailing_blanks(const Row& row) {
    std::span<const Cell> cells = row.cells;
    while (!row.wrapped && !cells.empty() && is_space(cells.back())) {
        cells = cells.first(cells.size() - 1);
    }
    return cells;
}

/// Appends the text of the cells `from` up to `to`, as far as there are any. A wide character counts from its
/// first half on.
void append_cells(const Terminal& terminal, std::span<const Cell> cells, int from, int to, std::string& out) {
    const int end = std::min(to, static_cast<int>(cells.size()));
    if (from > 0 && from < end && cells[static_cast<std::size_t>(from)].is_wide_tail()) {
        --from;
    }
    for (int column = std::max(from, 0); column < end; ++column) {
        terminal.append_text(cells[static_cast<std::size_t>(column)], out);
    }
}

enum class CharacterClass : std::uint8_t { blank, word, other };

CharacterClass class_of(char32_t character) {
    if (character == 0 || character == U' ' || character == 0xA0) {
        return CharacterClass::blank;
    }
    constexpr std::u32string_view word_punctuation = U"-_./~:@%+#=?&$";
    if (word_punctuation.find(character) != std::u32string_view::npos) {
        return CharacterClass::word;
    }
    const auto category = utf8proc_category(static_cast<utf8proc_int32_t>(character));
    const bool letter = category >= UTF8PROC_CATEGORY_LU && category <= UTF8PROC_CATEGORY_NO;
    return letter ? CharacterClass::word : CharacterClass::other;
}

CharacterClass class_at(const Terminal& terminal, std::span<const Cell> cells, int column) {
    if (column >= std::ssize(cells)) {
        return CharacterClass::blank;
    }
    Cell cell = cells[static_cast<std::size_t>(column)];
    if (cell.is_wide_tail() && column > 0) {
        cell = cells[static_cast<std::size_t>(column) - 1];
    }
    if (!cell.is_cluster()) {
        return class_of(cell.character());
    }
    std::string text;
    terminal.append_text(cell, text);
    const char* begin = text.data();
    return class_of(take_utf8(begin));
}

/// The columns of a row that belong to it: all of them, unless its line goes on.
int row_end(const Terminal& terminal, const Row& row) {
    return row.wrapped ? static_cast<int>(row.cells.size()) : terminal.size().columns;
}

Position extend_left(const Terminal& terminal, Position position, CharacterClass wanted) {
    for (;;) {
        const Row row = terminal.row(position.row);
        while (position.column > 0 && class_at(terminal, row.cells, position.column - 1) == wanted) {
            --position.column;
        }
        if (position.column > 0 || position.row == terminal.first_row()) {
            return position;
        }
        const Row before = terminal.row(position.row - 1);
        const int end = static_cast<int>(before.cells.size());
        if (!before.wrapped || end == 0 || class_at(terminal, before.cells, end - 1) != wanted) {
            return position;
        }
        position = {position.row - 1, end};
    }
}

Position extend_right(const Terminal& terminal, Position position, CharacterClass wanted) {
    for (;;) {
        const Row row = terminal.row(position.row);
        const int end = row_end(terminal, row);
        while (position.column < end && class_at(terminal, row.cells, position.column) == wanted) {
            ++position.column;
        }
        if (position.column < end || !row.wrapped || position.row + 1 >= terminal.end_row()) {
            return position;
        }
        if (class_at(terminal, terminal.row(position.row + 1).cells, 0) != wanted) {
            return position;
        }
        position = {position.row + 1, 0};
    }
}

}  // namespace

std::string text_between(const Terminal& terminal, Range range) {
    std::string out;
    const RowId first = std::max(range.begin.row, terminal.first_row());
    const RowId last = std::min(range.end.row, terminal.end_row() - 1);
    for (RowId id = first; id <= last; ++id) {
        const Row row = terminal.row(id);
        const int from = id == range.begin.row ? range.begin.column : 0;
        const int to = id == range.end.row ? range.end.column : whole_row;
        const std::span<const Cell> cells = without_trailing_blanks(row);
        append_cells(terminal, cells, from, to, out);
        if (!row.wrapped && cells.empty()) {  // the line's last blanks are in the rows before
            out.resize(out.find_last_not_of(' ') + 1);
        }
        if (!row.wrapped && id < last) {
            out += '\n';
        }
    }
    return out;
}

Range logical_line(const Terminal& terminal, RowId row) {
    RowId last = row;
    while (last + 1 < terminal.end_row() && terminal.row(last).wrapped) {
        ++last;
    }
    return {{line_begin(terminal, row), 0}, {last, terminal.size().columns}};
}

Range word_at(const Terminal& terminal, Position position) {
    const Row row = terminal.row(position.row);
    position.column = std::clamp(position.column, 0, terminal.size().columns - 1);
    const CharacterClass wanted = class_at(terminal, row.cells, position.column);
    if (wanted != CharacterClass::other) {
        return {extend_left(terminal, position, wanted), extend_right(terminal, position, wanted)};
    }
    const auto index = static_cast<std::size_t>(position.column);
    if (row.cells[index].is_wide_tail()) {
        return {{position.row, position.column - 1}, {position.row, position.column + 1}};
    }
    return {position, {position.row, position.column + (row.cells[index].is_wide() ? 2 : 1)}};
}

Range line_to_cursor(const Terminal& terminal) {
    const Cursor cursor = terminal.cursor();
    Position end = cursor.position;
    end.column += cursor.wrap_pending ? 1 : 0;
    return {{line_begin(terminal, end.row), 0}, end};
}

std::string line_to_cursor_text(const Terminal& terminal) {
    const Range range = line_to_cursor(terminal);
    std::string out;
    for (RowId id = range.begin.row; id < range.end.row; ++id) {
        append_cells(terminal, terminal.row(id).cells, 0, whole_row, out);
    }
    const Row row = terminal.row(range.end.row);
    append_cells(terminal, row.cells, 0, range.end.column, out);
    const auto missing = range.end.column - std::ssize(row.cells);
    out.append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(missing, 0)), ' ');
    return out;
}

std::string line_behind_cursor_text(const Terminal& terminal) {
    const Position begin = line_to_cursor(terminal).end;
    const Range line = logical_line(terminal, begin.row);
    std::string out = text_between(terminal, {begin, line.end});
    // A prompt at the right edge (zsh's RPROMPT) leaves exactly one column free; a gap on its row, which the
    // shell never lets the command come near, parts it from that.
    const std::size_t used = without_trailing_blanks(terminal.row(line.end.row)).size();
    const Position row_begin = std::max(begin, Position{line.end.row, 0});
    const std::string in_row = text_between(terminal, {row_begin, line.end});
    const std::size_t gap = in_row.rfind("  ");
    if (gap != std::string::npos && static_cast<int>(used) == terminal.size().columns - 1) {
        out.erase(out.size() - in_row.size() + gap);
        out.erase(out.find_last_not_of(' ') + 1);
    }
    return out;
}

}  // namespace terminal
