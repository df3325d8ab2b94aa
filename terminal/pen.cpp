// SPDX-License-Identifier: MIT
#include "terminal/pen.h"

#include "terminal/limits.h"

namespace terminal {

void Pen::push_style() {
    if (saved_.size() < max_saved_states) {
        saved_.push_back(state_.style);
    }
}

void Pen::pop_style() {
    if (!saved_.empty()) {
        change().style = saved_.back();
        saved_.pop_back();
    }
}

void Pen::refresh_cell(CellTables& tables) {
    cell_stale_ = false;
    cell_.glyph = (state_.guarded ? Cell::guarded : 0) | (state_.area_guarded ? Cell::area_guarded : 0);
    cell_.style = tables.intern(state_.style);
}

void Pen::refresh_blank(CellTables& tables) {
    blank_stale_ = false;
    Style erased;
    erased.background = state_.style.background;
    blank_.style = tables.intern(erased);
}

void Pen::add_used(UsedIds& used) const {
    used.add({0, cell_.style, cell_.link});
    used.add(blank_);
}

}  // namespace terminal
