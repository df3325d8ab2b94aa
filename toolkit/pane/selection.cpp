// SPDX-License-Identifier: MIT
#include "toolkit/pane/selection.h"

#include "terminal/text.h"

#include <algorithm>

using terminal::Position;
using terminal::Range;
using terminal::RowId;

namespace {

/// Wide characters are selected whole: a boundary in the middle of one moves to the side given.
Position off_wide_tail(const terminal::Terminal& terminal, Position place, int step) {
    const terminal::Row row = terminal.row(place.row);
    const auto column = static_cast<std::size_t>(place.column);
    if (column < row.cells.size() && row.cells[column].is_wide_tail()) {
        place.column += step;
    }
    return place;
}

}  // namespace

void TerminalSelection::begin(Position place, SelectionUnit unit) {
    unit_ = unit;
    begun_ = true;
    start_ = unit_at(place);
    update(start_);
}

void TerminalSelection::extend(Position place) { update(unit_at(place)); }

void TerminalSelection::select(Range range) {
    unit_ = SelectionUnit::character;
    start_ = {range.begin, range.begin};
    update({range.end, range.end});
}

void TerminalSelection::clear() {
    begun_ = false;
    start_ = range_ = {};
    witnesses_.clear();
}

std::string TerminalSelection::text() const {
    if (empty() || unit_ != SelectionUnit::block) {
        return empty() ? "" : text_between(terminal_, range_);
    }
    std::string rows;
    for (RowId row = range_.begin.row; row <= range_.end.row; ++row) {
        std::string text = text_of_row(row);
        text.resize(text.find_last_not_of(' ') + 1);
        rows += (row == range_.begin.row ? "" : "\n") + text;
    }
    return rows;
}

Columns TerminalSelection::columns_in(RowId row) const {
    if (range_.empty() || row < range_.begin.row || row > range_.end.row) {
        return {};
    }
    const bool block = unit_ == SelectionUnit::block;
    const bool first = block || row == range_.begin.row;
    const bool last = block || row == range_.end.row;
    return {first ? range_.begin.column : 0, last ? range_.end.column : terminal_.size().columns};
}

Range TerminalSelection::unit_at(Position place) const {
    switch (unit_) {
        case SelectionUnit::character:
        case SelectionUnit::block:
            break;
        case SelectionUnit::word:
            return word_at(terminal_, place);
        case SelectionUnit::line:
            return logical_line(terminal_, place.row);
    }
    return {place, place};
}

void TerminalSelection::update(Range moving) {
    range_ = {std::min(start_.begin, moving.begin), std::max(start_.end, moving.end)};
    if (unit_ == SelectionUnit::block) {
        const auto [left, right] = std::minmax(start_.begin.column, moving.begin.column);
        range_ = left == right ? Range{start_.begin, start_.begin}
                               : Range{{range_.begin.row, left}, {range_.end.row, right}};
    } else if (!range_.empty()) {
        range_.begin = off_wide_tail(terminal_, range_.begin, -1);
        range_.end = off_wide_tail(terminal_, range_.end, 1);
    }
    take_witnesses();
    anchors_[0] = range_.begin;
    anchors_[1] = range_.end;
    anchors_[2] = start_.begin;
    anchors_[3] = start_.end;
}

std::string TerminalSelection::text_of_row(RowId row) const {
    const Columns columns = columns_in(row);
    return text_between(terminal_, {{row, columns.begin}, {row, columns.end}});
}

void TerminalSelection::take_witnesses() {
    witnesses_.clear();
    if (range_.empty()) {
        return;
    }
    const RowId first = std::max(range_.begin.row, terminal_.screen_top());
    const RowId last = std::min(range_.end.row, terminal_.end_row() - 1);
    for (RowId row = first; row <= last; ++row) {
        witnesses_.push_back({row, terminal_.row(row).stamp, text_of_row(row)});
    }
}

bool TerminalSelection::drop_if_changed() {
    if (range_.empty()) {
        return false;
    }
    bool changed = range_.begin.row < terminal_.first_row() || range_.end.row >= terminal_.end_row();
    for (Witness& witness : witnesses_) {
        const std::uint64_t stamp = terminal_.row(witness.row).stamp;
        if (changed || stamp == witness.stamp) {
            continue;
        }
        changed = text_of_row(witness.row) != witness.text;
        witness.stamp = stamp;
    }
    if (changed) {
        clear();
    }
    return changed;
}

void TerminalSelection::anchors_moved() {
    if (unit_ == SelectionUnit::block) {
        clear();  // its rows have been wrapped anew
    } else if (!range_.empty()) {
        range_ = {anchors_[0], anchors_[1]};
        start_ = {anchors_[2], anchors_[3]};
        take_witnesses();
    }
}
