// SPDX-License-Identifier: MIT
#include "toolkit/pane/reader.h"

#include <QAccessible>

#include <algorithm>

using terminal::Cell;
using terminal::Position;
using terminal::RowId;

namespace {

// Longer changes are not spelt out to assistive tools: nobody listens to a flood.
constexpr qsizetype told_limit = 65'536;

bool is_blank(const Cell& cell) { return cell.glyph == 0 || cell.glyph == U' '; }

void append_cell(const terminal::Terminal& terminal, const Cell& cell, QString& out) {
    if (cell.is_wide_tail()) {
        return;
    }
    if (!cell.is_cluster() && cell.character() < 0x80) {
        out += cell.character() == 0 ? QChar(u' ') : QChar(static_cast<char16_t>(cell.character()));
        return;
    }
    std::string text;
    terminal.append_text(cell, text);
    out += QString::fromStdString(text);
}

/// How many of a row's cells are text. A wrapped row ends where it wrapped: a wide character may have left
/// the last column free.
std::size_t text_columns(const terminal::Row& row) {
    std::size_t count = row.cells.size();
    while (count > 0 && (row.wrapped ? row.cells[count - 1].glyph == 0 : is_blank(row.cells[count - 1]))) {
        --count;
    }
    return count;
}

Position insertion_point(const terminal::Cursor& cursor) {
    return {cursor.position.row, cursor.position.column + (cursor.wrap_pending ? 1 : 0)};
}

QString text_of_row(const terminal::Terminal& terminal, RowId id, std::size_t columns) {
    const terminal::Row row = terminal.row(id);
    QString text;
    text.reserve(static_cast<qsizetype>(columns));
    for (std::size_t column = 0; column < columns; ++column) {
        append_cell(terminal, column < row.cells.size() ? row.cells[column] : Cell{}, text);
    }
    return text;
}

/// With the blanks before the insertion point.
std::size_t read_columns(const terminal::Terminal& terminal, RowId id) {
    const terminal::Row row = terminal.row(id);
    const std::size_t columns = text_columns(row);
    const Position point = insertion_point(terminal.cursor());
    return point.row == id && !row.wrapped ? std::max(columns, static_cast<std::size_t>(point.column))
                                           : columns;
}

}  // namespace

TerminalReader::StoredLine TerminalReader::read_line(RowId first) const {
    StoredLine line{first, first, 0, {}};
    bool wrapped = true;
    while (wrapped && line.end_row < terminal_.end_row()) {
        line.text += text_of_row(terminal_, line.end_row, read_columns(terminal_, line.end_row));
        wrapped = terminal_.row(line.end_row).wrapped;
        ++line.end_row;
    }
    return line;
}

TerminalReader::Text& TerminalReader::refresh() {
    Text& text = terminal_.modes().alternate_screen ? alternate_ : main_;
    if (text.stamp == terminal_.stamp() && text.size == terminal_.size()) {
        return text;
    }
    if (text.size != terminal_.size()) {
        text.lines.clear();  // rows have new numbers
        text.settled = 0;
    }
    text.stamp = terminal_.stamp();
    text.size = terminal_.size();
    drop_lost_lines(text);
    read_lines(text);
    drop_blank_lines(text);
    return text;
}

/// Lines that have left the scrollback, and such as have come back from it to the screen.
void TerminalReader::drop_lost_lines(Text& text) {
    const RowId first = terminal_.first_row();
    while (text.settled > 0 && text.lines.front().end_row <= first) {
        if (told_.valid && lost_.size() < told_limit) {
            lost_ += text.lines.front().text + u'\n';
        }
        text.lines.pop_front();
        --text.settled;
    }
    if (text.settled > 0 && text.lines.front().first_row < first) {
        StoredLine& line = text.lines.front();
        const std::int64_t end = line.end();
        line = read_line(first);
        line.start = end - line.text.size();
    }
    while (text.settled > 0 && text.lines[text.settled - 1].end_row > terminal_.screen_top()) {
        --text.settled;
    }
}

void TerminalReader::read_lines(Text& text) {
    std::int64_t start = text.lines.empty() ? 0 : text.lines.front().start;
    text.lines.resize(text.settled);
    RowId row = terminal_.first_row();
    if (!text.lines.empty()) {
        row = std::max(row, text.lines.back().end_row);
        start = text.lines.back().end() + 1;
    }
    while (row < terminal_.end_row()) {
        StoredLine line = read_line(row);
        line.start = start;
        start = line.end() + 1;
        row = line.end_row;
        text.settled += row <= terminal_.screen_top() ? 1 : 0;
        text.lines.push_back(std::move(line));
    }
}

void TerminalReader::drop_blank_lines(Text& text) {
    const RowId cursor_row = terminal_.cursor().position.row;
    while (text.lines.size() > 1 && text.lines.back().text.isEmpty() &&
           text.lines.back().first_row > cursor_row) {
        text.lines.pop_back();
    }
    text.settled = std::min(text.settled, text.lines.size());
}

// Offsets.

std::deque<TerminalReader::StoredLine>::const_iterator TerminalReader::line_of(const Text& text,
                                                                               std::int64_t place) {
    const auto next =
        std::upper_bound(text.lines.begin(), text.lines.end(), place,
                         [](std::int64_t at, const StoredLine& line) { return at < line.start; });
    return next == text.lines.begin() ? next : std::prev(next);
}

int TerminalReader::size() {
    const Text& text = refresh();
    return text.lines.empty() ? 0 : static_cast<int>(text.lines.back().end() - text.lines.front().start);
}

int TerminalReader::caret() { return offset_of(insertion_point(terminal_.cursor())); }

QString TerminalReader::text(int begin, int end) {
    const Text& text = refresh();
    QString result;
    if (text.lines.empty() || begin >= end) {
        return result;
    }
    const std::int64_t base = text.lines.front().start;
    for (auto line = line_of(text, base + begin); line != text.lines.end() && line->start < base + end;
         ++line) {
        const auto from = std::max<std::int64_t>(0, base + begin - line->start);
        const auto to = base + end - line->start;
        result += QStringView(line->text).mid(from, to - from);
        if (to > line->text.size() && std::next(line) != text.lines.end()) {
            result += u'\n';
        }
    }
    return result;
}

TerminalReader::Line TerminalReader::line_at(int offset) {
    const Text& text = refresh();
    if (text.lines.empty()) {
        return {};
    }
    const std::int64_t base = text.lines.front().start;
    const auto line = line_of(text, base + offset);
    return {static_cast<int>(line->start - base), static_cast<int>(line->end() - base), line->text};
}

int TerminalReader::offset_of(Position position) {
    const Text& text = refresh();
    if (text.lines.empty()) {
        return 0;
    }
    const std::int64_t base = text.lines.front().start;
    const auto next =
        std::upper_bound(text.lines.begin(), text.lines.end(), position.row,
                         [](RowId row, const StoredLine& line) { return row < line.first_row; });
    if (next == text.lines.begin()) {
        return 0;
    }
    const StoredLine& line = *std::prev(next);
    qsizetype units = 0;
    for (RowId row = line.first_row; row < std::min(position.row, line.end_row); ++row) {
        units += text_of_row(terminal_, row, read_columns(terminal_, row)).size();
    }
    if (position.row < line.end_row) {
        units += text_of_row(terminal_, position.row, static_cast<std::size_t>(position.column)).size();
    }
    return static_cast<int>(line.start - base + std::min(units, line.text.size()));
}

Position TerminalReader::position_of(int offset) {
    const Text& text = refresh();
    if (text.lines.empty()) {
        return {terminal_.screen_top(), 0};
    }
    const auto line = line_of(text, text.lines.front().start + offset);
    qsizetype units = text.lines.front().start + offset - line->start;
    for (RowId row = line->first_row; row < line->end_row; ++row) {
        const qsizetype here = text_of_row(terminal_, row, read_columns(terminal_, row)).size();
        if (units > here || (units == here && row + 1 < line->end_row)) {
            units -= here;
            continue;
        }
        const terminal::Row cells = terminal_.row(row);
        int column = 0;
        QString before;
        while (static_cast<std::size_t>(column) < cells.cells.size() && before.size() < units) {
            append_cell(terminal_, cells.cells[static_cast<std::size_t>(column++)], before);
        }
        // What follows the last cell is blank, one unit a column; a wide character's tail is skipped.
        const bool at_tail = static_cast<std::size_t>(column) < cells.cells.size() &&
                             cells.cells[static_cast<std::size_t>(column)].is_wide_tail();
        return {row,
                column + static_cast<int>(std::max<qsizetype>(0, units - before.size())) + (at_tail ? 1 : 0)};
    }
    return {line->end_row - 1, 0};
}

// Events.

QString TerminalReader::text_from(const Text& text, std::int64_t place) {
    QString result;
    for (auto line = text.lines.rbegin(); line != text.lines.rend() && line->end() >= place; ++line) {
        const auto from = std::max<std::int64_t>(0, place - line->start);
        result.prepend((line == text.lines.rbegin() ? QString() : QStringLiteral("\n")));
        result.prepend(line->text.mid(from));
    }
    return result;
}

void TerminalReader::tell_changes(QObject& view, const terminal::Range& selection) {
    if (!QAccessible::isActive()) {
        told_ = {};
        lost_.clear();
        return;
    }
    Text& text = refresh();
    tell_text(view, text);
    tell_caret_and_selection(view, selection);
}

void TerminalReader::tell_text(QObject& view, Text& text) {
    const bool alternate = terminal_.modes().alternate_screen;
    const std::int64_t base = text.lines.empty() ? 0 : text.lines.front().start;
    const bool comparable = told_.valid && told_.alternate == alternate && base <= told_.tail_start;
    const QString lost = std::exchange(lost_, {});
    if (comparable && !lost.isEmpty() && lost.size() == base - told_.base) {
        QAccessibleTextRemoveEvent removal(&view, 0, lost);
        QAccessible::updateAccessibility(&removal);
    }
    const std::int64_t from = comparable ? told_.tail_start : base;
    const QString before = comparable ? told_.tail : QString();
    const QString now = text_from(text, from);
    const qsizetype shorter = std::min(before.size(), now.size());
    qsizetype same = 0;
    while (same < shorter && before[same] == now[same]) {
        ++same;
    }
    qsizetype same_end = 0;
    while (same_end < shorter - same &&
           before[before.size() - 1 - same_end] == now[now.size() - 1 - same_end]) {
        ++same_end;
    }
    const QString removed = before.mid(same, before.size() - same - same_end);
    const QString inserted = now.mid(same, now.size() - same - same_end);
    const int place = static_cast<int>(from - base + same);
    const bool tellable = comparable && inserted.size() < told_limit;
    if (tellable && removed.isEmpty() && !inserted.isEmpty()) {
        QAccessibleTextInsertEvent event(&view, place, inserted);
        QAccessible::updateAccessibility(&event);
    } else if (tellable && !removed.isEmpty() && inserted.isEmpty()) {
        QAccessibleTextRemoveEvent event(&view, place, removed);
        QAccessible::updateAccessibility(&event);
    } else if (tellable && !removed.isEmpty()) {
        QAccessibleTextUpdateEvent event(&view, place, removed, inserted);
        QAccessible::updateAccessibility(&event);
    }
    told_.valid = true;
    told_.alternate = alternate;
    told_.base = base;
    told_.tail_start = text.settled < text.lines.size() ? text.lines[text.settled].start : base;
    told_.tail = text_from(text, told_.tail_start);
}

void TerminalReader::tell_caret_and_selection(QObject& view, const terminal::Range& selection) {
    if (const int place = caret(); place != told_.caret) {
        told_.caret = place;
        QAccessibleTextCursorEvent event(&view, place);
        QAccessible::updateAccessibility(&event);
    }
    const int begin = selection.empty() ? 0 : offset_of(selection.begin);
    const int end = selection.empty() ? 0 : offset_of(selection.end);
    if (begin != told_.selection_begin || end != told_.selection_end) {
        told_.selection_begin = begin;
        told_.selection_end = end;
        QAccessibleTextSelectionEvent event(&view, begin, end);
        QAccessible::updateAccessibility(&event);
    }
}
