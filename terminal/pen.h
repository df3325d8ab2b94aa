// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/cell_tables.h"
#include "terminal/style.h"

#include <vector>

namespace terminal {

/// What written characters get besides their code: attributes, protection, link; and what erasing leaves.
class Pen {
  public:
    /// What DECSC saves of it.
    struct State {
        Style style;
        bool guarded = false;       ///< by DECSCA
        bool area_guarded = false;  ///< by SPA
    };

    [[nodiscard]] const State& state() const { return state_; }
    [[nodiscard]] const Style& style() const { return state_.style; }
    [[nodiscard]] LinkId link() const { return cell_.link; }
    /// The state, to be changed: the cells are made anew.
    [[nodiscard]] State& change() {
        cell_stale_ = blank_stale_ = true;
        return state_;
    }
    void set_link(LinkId link) { cell_.link = link; }

    /// Saves and brings back all attributes; the stack is as deep as xterm's.
    void push_style();
    void pop_style();
    void reset_saved() { saved_.clear(); }

    /// A cell without a character, with the pen's attributes.
    [[nodiscard]] const Cell& cell(CellTables& tables) {
        if (cell_stale_) {
            refresh_cell(tables);
        }
        return cell_;
    }
    /// What erasing leaves: a blank with the pen's background.
    [[nodiscard]] const Cell& blank(CellTables& tables) {
        if (blank_stale_) {
            refresh_blank(tables);
        }
        return blank_;
    }
    void add_used(UsedIds& used) const;

  private:
    void refresh_cell(CellTables& tables);
    void refresh_blank(CellTables& tables);

    State state_;
    std::vector<Style> saved_;
    bool cell_stale_ = false;
    bool blank_stale_ = false;
    Cell cell_;
    Cell blank_;
};

}  // namespace terminal
