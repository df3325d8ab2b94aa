// SPDX-License-Identifier: MIT
#include "terminal/engine.h"

#include <algorithm>

// Erasing, inserting, deleting and scrolling.

namespace terminal {

void Engine::erase_row(int row, int from, int to, bool selective) {
    if (selective) {
        screen_->erase_unguarded(row, from, to);
    } else {
        screen_->erase(row, from, to, blank());
    }
}

/// With a wrap pending the cursor stands behind the last column: erasing from there to the end of the row
/// spares the character before it, or programs that end coloured text with EL would lose it.
void Engine::erase_in_row(Which which, bool selective) {
    const int columns = size().columns;
    const int behind = cursor_.wrap_pending ? cursor_.column + 1 : cursor_.column;
    const int from = which == Which::cursor_to_end ? behind : 0;
    const int to = which == Which::begin_to_cursor ? cursor_.column + 1 : columns;
    erase_row(cursor_.row, from, to, selective);
}

void Engine::erase_on_screen(Which which, bool selective) {
    const int first = which == Which::cursor_to_end ? cursor_.row + 1 : 0;
    const int end = which == Which::begin_to_cursor ? cursor_.row : size().rows;
    for (int row = first; row < end; ++row) {
        erase_row(row, 0, size().columns, selective);
    }
    if (which != Which::all) {
        erase_in_row(which, selective);
    }
}

/// Scrolls within the margins. What leaves the primary screen at its top goes to the scrollback.
void Engine::scroll_text_up(int count) {
    const bool whole_rows = margins_.width() == size().columns;
    const bool whole_screen = whole_rows && margins_.height() == size().rows;
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

void Engine::scroll_text_down(int count) {
    if (margins_.top == 0 && !is_alternate()) {
        scrollback_.close();
    }
    screen_->scroll_down(margins_, count, blank());
}

/// The rows that IL and DL move; empty when the cursor is outside the margins.
Region Engine::below_cursor() const {
    if (!margins_.contains(cursor_.row, cursor_.column)) {
        return {};
    }
    return {cursor_.row, margins_.bottom, margins_.left, margins_.right};
}

void Engine::ich(Function function) {
    if (cursor_.column < margins_.left) {
        return;
    }
    screen_->insert_cells(cursor_.row, cursor_.column, right_limit(), function.parameters.count(0), blank());
    cursor_.wrap_pending = false;
}

void Engine::dch(Function function) {
    if (cursor_.column < margins_.left) {
        return;
    }
    screen_->delete_cells(cursor_.row, cursor_.column, right_limit(), function.parameters.count(0), blank());
    cursor_.wrap_pending = false;
}

void Engine::ech(Function function) {
    const int end = std::min(cursor_.column + function.parameters.count(0), size().columns);
    screen_->erase(cursor_.row, cursor_.column, end, blank());
    cursor_.wrap_pending = false;
}

void Engine::il(Function function) {
    const Region region = below_cursor();
    if (region.height() > 0) {
        screen_->scroll_down(region, function.parameters.count(0), blank());
        carriage_return();
    }
}

void Engine::dl(Function function) {
    const Region region = below_cursor();
    if (region.height() == 0) {
        return;
    }
    if (region.top == 0 && !is_alternate()) {
        scrollback_.close();
    }
    screen_->scroll_up(region, function.parameters.count(0), blank());
    carriage_return();
}

void Engine::ed(Function function) {
    switch (function.parameters.get(0)) {
        case 0:
            return erase_on_screen(Which::cursor_to_end, false);
        case 1:
            return erase_on_screen(Which::begin_to_cursor, false);
        case 2:
            return erase_on_screen(Which::all, false);
        case 3:
            scrollback_.clear();
            count_change();
            return;
        default:
            return;
    }
}

void Engine::decsed(Function function) {
    const int which = function.parameters.get(0);
    if (which <= 2) {
        erase_on_screen(which == 0   ? Which::cursor_to_end
                        : which == 1 ? Which::begin_to_cursor
                                     : Which::all,
                        true);
    }
}

void Engine::el(Function function) {
    const int which = function.parameters.get(0);
    if (which <= 2) {
        erase_in_row(which == 0   ? Which::cursor_to_end
                     : which == 1 ? Which::begin_to_cursor
                                  : Which::all,
                     false);
    }
}

void Engine::decsel(Function function) {
    const int which = function.parameters.get(0);
    if (which <= 2) {
        erase_in_row(which == 0   ? Which::cursor_to_end
                     : which == 1 ? Which::begin_to_cursor
                                  : Which::all,
                     true);
    }
}

void Engine::su(Function function) { scroll_text_up(function.parameters.count(0)); }

void Engine::sd(Function function) {
    if (function.parameters.size() <= 1) {  // with five it is xterm's highlight tracking
        scroll_text_down(function.parameters.count(0));
    }
}

void Engine::sl(Function function) {
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->delete_cells(row, margins_.left, margins_.right, function.parameters.count(0), blank());
    }
}

void Engine::sr(Function function) {
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->insert_cells(row, margins_.left, margins_.right, function.parameters.count(0), blank());
    }
}

void Engine::decic(Function function) {
    if (!margins_.contains(cursor_.row, cursor_.column)) {
        return;
    }
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->insert_cells(row, cursor_.column, margins_.right, function.parameters.count(0), blank());
    }
}

void Engine::decdc(Function function) {
    if (!margins_.contains(cursor_.row, cursor_.column)) {
        return;
    }
    for (int row = margins_.top; row < margins_.bottom; ++row) {
        screen_->delete_cells(row, cursor_.column, margins_.right, function.parameters.count(0), blank());
    }
}

void Engine::decaln(Function /*function*/) {
    reset_margins();
    screen_->fill(screen_->all(), {U'E', 0, 0});
    move_to(0, 0);
}

}  // namespace terminal
