// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <cstdlib>

// Moving the cursor. Rows and columns count from 0 here, from 1 in the sequences.

namespace terminal {

void Terminal::move_to(int row, int column) {
    cursor_ = {std::clamp(row, 0, size().rows - 1), std::clamp(column, 0, size().columns - 1), false};
}

/// As CUP counts: from the margins in origin mode.
void Terminal::move_in_origin(int row, int column) {
    if (!inner_.origin) {
        move_to(row, column);
        return;
    }
    move_to(std::min(margins_.top + row, margins_.bottom - 1),
            std::min(margins_.left + column, margins_.right - 1));
}

/// Up or down, as far as the margin the cursor is within, else the screen's edge.
void Terminal::move_vertically(int rows) {
    const int top = cursor_.row >= margins_.top ? margins_.top : 0;
    const int bottom = cursor_.row < margins_.bottom ? margins_.bottom : size().rows;
    move_to(std::clamp(cursor_.row + rows, top, bottom - 1), cursor_.column);
}

void Terminal::move_horizontally(int columns) {
    const int left = cursor_.column >= margins_.left ? margins_.left : 0;
    move_to(cursor_.row, std::clamp(cursor_.column + columns, left, right_limit() - 1));
}

void Terminal::carriage_return() {
    move_to(cursor_.row, cursor_.column >= margins_.left || inner_.origin ? margins_.left : 0);
}

void Terminal::line_feed() {
    const bool at_margin = cursor_.row == margins_.bottom - 1;
    if (at_margin && cursor_.column >= margins_.left && cursor_.column < margins_.right) {
        scroll_text_up(1);
    } else if (!at_margin && cursor_.row < size().rows - 1) {
        ++cursor_.row;
    }
    cursor_.wrap_pending = false;
}

void Terminal::reverse_line_feed() {
    const bool at_margin = cursor_.row == margins_.top;
    if (at_margin && cursor_.column >= margins_.left && cursor_.column < margins_.right) {
        scroll_text_down(1);
    } else if (!at_margin && cursor_.row > 0) {
        --cursor_.row;
    }
    cursor_.wrap_pending = false;
}

/// To the left, and with reverse wrap-around on to the end of the row above, from the top row to the last
/// one. A pending wrap then counts as a column. (Since its version 383 xterm goes only to rows that wrap,
/// unless mode 1045 is set too; here, as before, both modes do the same.)
void Terminal::back(int count) {
    if (!inner_.autowrap || !(inner_.reverse_wrap || inner_.far_reverse_wrap)) {
        move_horizontally(-count);
        return;
    }
    count = std::min(count, size().columns * size().rows) - (cursor_.wrap_pending ? 1 : 0);
    cursor_.wrap_pending = false;
    spend(count);
    for (; count > 0; --count) {
        if (cursor_.column == margins_.left || cursor_.column == 0) {
            const int above = cursor_.row == margins_.top ? margins_.bottom - 1
                              : cursor_.row == 0          ? size().rows - 1
                                                          : cursor_.row - 1;
            move_to(above, margins_.right - 1);
        } else {
            --cursor_.column;
        }
    }
}

void Terminal::tab(int count) {
    if (inner_.tab_wraps && cursor_.wrap_pending && inner_.autowrap) {
        wrap();
    }
    const int last = right_limit() - 1;
    for (; count > 0 && cursor_.column < last; --count) {
        cursor_.column = tabs_.next(cursor_.column, last);
    }
}

void Terminal::back_tab(int count) {
    const int first = inner_.origin ? margins_.left : 0;
    cursor_.wrap_pending = false;
    for (; count > 0 && cursor_.column > first; --count) {
        cursor_.column = tabs_.previous(cursor_.column, first);
    }
}

void Terminal::save_cursor() { saved() = {cursor_, pen_.state(), inner_.origin, true, sets_}; }

void Terminal::restore_cursor() {
    const SavedCursor& from = saved();
    pen_.change() = from.pen;
    sets_ = from.sets;
    inner_.origin = from.origin;
    move_to(from.cursor.row, from.cursor.column);
    if (inner_.origin) {  // the margins may be others by now
        move_to(std::clamp(cursor_.row, margins_.top, margins_.bottom - 1),
                std::clamp(cursor_.column, margins_.left, margins_.right - 1));
    }
    cursor_.wrap_pending = from.cursor.wrap_pending && from.cursor.column == cursor_.column;
}

void Terminal::cuu(Function function) { move_vertically(-function.parameters.count(0)); }
void Terminal::cud(Function function) { move_vertically(function.parameters.count(0)); }
void Terminal::cuf(Function function) { move_horizontally(function.parameters.count(0)); }

void Terminal::cub(Function function) { back(function.parameters.count(0)); }

void Terminal::cnl(Function function) {
    move_vertically(function.parameters.count(0));
    carriage_return();
}

void Terminal::cpl(Function function) {
    move_vertically(-function.parameters.count(0));
    carriage_return();
}

void Terminal::cha(Function function) {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    move_in_origin(row, function.parameters.count(0) - 1);
}

/// HPR and VPR are not held by the margins, unless in origin mode.
void Terminal::hpr(Function function) {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    move_in_origin(row, column + function.parameters.count(0));
}

void Terminal::vpr(Function function) {
    const int row = inner_.origin ? cursor_.row - margins_.top : cursor_.row;
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    move_in_origin(row + function.parameters.count(0), column);
}

void Terminal::cup(Function function) {
    move_in_origin(function.parameters.count(0) - 1, function.parameters.count(1) - 1);
}

void Terminal::cht(Function function) { tab(function.parameters.count(0)); }
void Terminal::cbt(Function function) { back_tab(function.parameters.count(0)); }

void Terminal::vpa(Function function) {
    const int column = inner_.origin ? cursor_.column - margins_.left : cursor_.column;
    move_in_origin(function.parameters.count(0) - 1, column);
}

void Terminal::tbc(Function function) {
    const int which = function.parameters.get(0);
    if (which == 0) {
        tabs_.clear(cursor_.column);
    } else if (which == 3) {
        tabs_.clear_all();
    }
}

/// The stops of a new terminal.
void Terminal::decst8c(Function function) {
    if (function.parameters.get(0) == 5) {
        tabs_.reset();
    }
}

void Terminal::hts(Function /*function*/) { tabs_.set(cursor_.column); }

void Terminal::ind(Function /*function*/) { line_feed(); }

void Terminal::nel(Function /*function*/) {
    line_feed();
    carriage_return();
}

void Terminal::ri(Function /*function*/) { reverse_line_feed(); }

void Terminal::decbi(Function /*function*/) {
    if (cursor_.column != margins_.left) {
        move_to(cursor_.row, cursor_.column - 1);
    } else if (margins_.contains(cursor_.row, cursor_.column)) {
        insert_columns(margins_.left, 1);
    }
}

void Terminal::decfi(Function /*function*/) {
    if (cursor_.column != margins_.right - 1) {
        move_to(cursor_.row, cursor_.column + 1);
    } else if (margins_.contains(cursor_.row, cursor_.column)) {
        delete_columns(margins_.left, 1);
    }
}

void Terminal::decsc(Function /*function*/) { save_cursor(); }
void Terminal::decrc(Function /*function*/) { restore_cursor(); }

/// `CSI s` sets the side margins where they may be set, else saves the cursor as the SCO console does.
void Terminal::scosc_or_decslrm(Function function) {
    if (!inner_.side_margins) {
        if (function.parameters.size() == 0) {
            save_cursor();
        }
        return;
    }
    const int left = function.parameters.count(0);
    const int right = std::min(std::max(function.parameters.get(1), 0), size().columns);
    const int end = right == 0 ? size().columns : right;
    if (left < end) {
        margins_.left = left - 1;
        margins_.right = end;
        move_in_origin(0, 0);
    }
}

}  // namespace terminal
