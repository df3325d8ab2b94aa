// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <array>

// Erasing, inserting, deleting and scrolling.

namespace terminal {

/// Selective erasing (DECSED, DECSEL) spares what DECSCA guards; the other spares guarded areas, once there
/// are any.
void Terminal::erase_row(int row, int from, int to, Erasure erasure) {
    if (erasure == Erasure::selective) {
        screen_->erase_unguarded(row, from, to, Cell::guarded);
    } else if (guards_areas_) {
        screen_->erase_unguarded(row, from, to, Cell::area_guarded, blank());
    } else {
        screen_->erase(row, from, to, blank());
    }
    spend(to - from);
    if (row == 0 && from == 0 && to == size().columns) {
        part_from_scrollback();
    }
}

/// What is in the first row now is not the end of a line that has left the screen.
void Terminal::part_from_scrollback() {
    if (!is_alternate()) {
        scrollback_.close();
    }
}

void Terminal::fill(const Region& region, Cell cell) {
    screen_->fill(region, cell);
    spend(region.height() * region.width());
    if (region.top == 0 && region.height() > 0 && region.width() == size().columns) {
        part_from_scrollback();
    }
}

/// With a wrap pending the cursor stands behind the last column: erasing from there to the end of the row
/// spares the character before it, or programs that end coloured text with EL would lose it. Where it is
/// erased no wrap is pending any more.
void Terminal::erase_in_row(Which which, Erasure erasure) {
    const int columns = size().columns;
    const int behind = cursor_.wrap_pending ? cursor_.column + 1 : cursor_.column;
    const int from = which == Which::cursor_to_end ? behind : 0;
    const int to = which == Which::begin_to_cursor ? cursor_.column + 1 : columns;
    erase_row(cursor_.row, from, to, erasure);
    cursor_.wrap_pending = cursor_.wrap_pending && which == Which::cursor_to_end;
}

void Terminal::erase_on_screen(Which which, Erasure erasure) {
    const int first = which == Which::cursor_to_end ? cursor_.row + 1 : 0;
    const int end = which == Which::begin_to_cursor ? cursor_.row : size().rows;
    for (int row = first; row < end; ++row) {
        erase_row(row, 0, size().columns, erasure);
    }
    if (which != Which::all) {
        erase_in_row(which, erasure);
    }
}

/// Scrolls within the margins. What leaves the primary screen at its top goes to the scrollback.
void Terminal::scroll_text_up(int count) {
    const bool whole_rows = margins_.width() == size().columns;
    const bool whole_screen = whole_rows && margins_.height() == size().rows;
    if (count > 1) {
        spend(std::min(count, margins_.height()) * margins_.width());
    }
    if (margins_.top > 0 || !whole_rows || (is_alternate() && !whole_screen)) {
        screen_->scroll_up(margins_, count, blank());
        return;
    }
    for (int i = std::min(count, margins_.height()); i > 0; --i) {
        if (!is_alternate()) {
            scrollback_.push(screen_->cells(0), screen_->wrapped(0), screen_->stamp(0));
            scrollback_.trim();
        }
        screen_->advance(margins_.bottom, blank());
    }
}

void Terminal::scroll_text_down(int count) {
    if (margins_.top == 0) {
        part_from_scrollback();
    }
    spend(margins_.height() * margins_.width());
    screen_->scroll_down(margins_, count, blank());
}

/// The rows that IL and DL move; empty when the cursor is outside the margins.
Region Terminal::below_cursor() const {
    if (!margins_.contains(cursor_.row, cursor_.column)) {
        return {};
    }
    return {cursor_.row, margins_.bottom, margins_.left, margins_.right};
}

/// Outside the side margins ICH and DCH do nothing.
void Terminal::ich(Function function) {
    cursor_.wrap_pending = false;
    if (cursor_.column >= margins_.left && cursor_.column < margins_.right) {
        screen_->insert_cells(cursor_.row, cursor_.column, margins_.right, function.parameters.count(0),
                              blank());
    }
}

void Terminal::dch(Function function) {
    cursor_.wrap_pending = false;
    if (cursor_.column >= margins_.left && cursor_.column < margins_.right) {
        screen_->delete_cells(cursor_.row, cursor_.column, margins_.right, function.parameters.count(0),
                              blank());
    }
}

void Terminal::ech(Function function) {
    const int end = std::min(cursor_.column + function.parameters.count(0), size().columns);
    erase_row(cursor_.row, cursor_.column, end, Erasure::plain);
    cursor_.wrap_pending = false;
}

void Terminal::il(Function function) {
    const Region region = below_cursor();
    if (region.height() == 0) {
        return;
    }
    if (region.top == 0) {
        part_from_scrollback();
    }
    spend(region.height() * region.width());
    screen_->scroll_down(region, function.parameters.count(0), blank());
    carriage_return();
}

void Terminal::dl(Function function) {
    const Region region = below_cursor();
    if (region.height() == 0) {
        return;
    }
    if (region.top == 0) {
        part_from_scrollback();
    }
    spend(region.height() * region.width());
    screen_->scroll_up(region, function.parameters.count(0), blank());
    carriage_return();
}

std::optional<Terminal::Which> Terminal::which(Function function) {
    constexpr std::array parts = {Which::cursor_to_end, Which::begin_to_cursor, Which::all};
    const auto number = static_cast<std::size_t>(function.parameters.get(0));
    return number < parts.size() ? std::optional(parts[number]) : std::nullopt;
}

void Terminal::ed(Function function) {
    if (const auto part = which(function)) {
        erase_on_screen(*part, Erasure::plain);
    } else if (function.parameters.get(0) == 3) {
        scrollback_.clear();
        count_change();
    }
}

void Terminal::decsed(Function function) {
    if (const auto part = which(function)) {
        erase_on_screen(*part, Erasure::selective);
    }
}

void Terminal::el(Function function) {
    if (const auto part = which(function)) {
        erase_in_row(*part, Erasure::plain);
    }
}

void Terminal::decsel(Function function) {
    if (const auto part = which(function)) {
        erase_in_row(*part, Erasure::selective);
    }
}

void Terminal::su(Function function) { scroll_text_up(function.parameters.count(0)); }

void Terminal::sd(Function function) {
    if (function.parameters.size() <= 1) {  // with five it is xterm's highlight tracking
        scroll_text_down(function.parameters.count(0));
    }
}

/// SL and SR move the text within the margins, and only when the cursor is there, as on xterm.
void Terminal::sl(Function function) {
    if (margins_.contains(cursor_.row, cursor_.column)) {
        delete_columns(margins_.left, function.parameters.count(0));
    }
}

void Terminal::sr(Function function) {
    if (margins_.contains(cursor_.row, cursor_.column)) {
        insert_columns(margins_.left, function.parameters.count(0));
    }
}

void Terminal::decic(Function function) {
    if (margins_.contains(cursor_.row, cursor_.column)) {
        insert_columns(cursor_.column, function.parameters.count(0));
    }
}

void Terminal::decdc(Function function) {
    if (margins_.contains(cursor_.row, cursor_.column)) {
        delete_columns(cursor_.column, function.parameters.count(0));
    }
}

/// In all rows within the margins, from `column` to the right margin.
void Terminal::insert_columns(int column, int count) {
    spend(margins_.height() * margins_.width());
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->insert_cells(row, column, margins_.right, count, blank());
    }
}

void Terminal::delete_columns(int column, int count) {
    spend(margins_.height() * margins_.width());
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->delete_cells(row, column, margins_.right, count, blank());
    }
}

void Terminal::decaln(Function /*function*/) {
    reset_margins();
    inner_.origin = false;
    fill(screen_->all(), {U'E', 0, 0});
    move_to(0, 0);
}

}  // namespace terminal
