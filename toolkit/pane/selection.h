// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"
#include "toolkit/pane/columns.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// What a selection grows by: one click, two, three; or as a block of columns.
enum class SelectionUnit : std::uint8_t { character, word, line, block };

/// A stretch of a terminal's text that the user has marked. It follows its text through output and scrolling,
/// and is dropped once the text changes.
class TerminalSelection {
  public:
    explicit TerminalSelection(const terminal::Terminal& terminal) : terminal_(terminal) {}

    /// Starts anew at a place; by words and lines that one is selected at once.
    void begin(terminal::Position place, SelectionUnit unit);
    /// Moves the end that is not the start.
    void extend(terminal::Position place);
    void select(terminal::Range range);
    void clear();

    [[nodiscard]] bool empty() const { return range_.empty(); }
    /// A block's range goes from its upper left to its lower right corner.
    [[nodiscard]] terminal::Range range() const { return range_; }
    /// What of a row is selected.
    [[nodiscard]] Columns columns_in(terminal::RowId row) const;
    /// Whether it was begun, if only by a click, so that it can be extended.
    [[nodiscard]] bool begun() const { return begun_; }
    [[nodiscard]] SelectionUnit unit() const { return unit_; }
    [[nodiscard]] std::string text() const;

    /// Drops the selection if its text is no longer what it was; says whether it was dropped.
    bool drop_if_changed();
    /// The places a resize has to move along, changed in place.
    [[nodiscard]] std::span<terminal::Position> anchors() { return anchors_; }
    /// After a resize has moved the anchors.
    void anchors_moved();

  private:
    /// A row on the screen as it was when last looked at. Rows of the scrollback do not change.
    struct Witness {
        terminal::RowId row;
        std::uint64_t stamp;
        std::string text;
    };
    [[nodiscard]] terminal::Range unit_at(terminal::Position place) const;
    [[nodiscard]] std::string text_of_row(terminal::RowId row) const;
    void update(terminal::Range moving);
    void take_witnesses();

    const terminal::Terminal& terminal_;
    SelectionUnit unit_ = SelectionUnit::character;
    bool begun_ = false;
    terminal::Range start_;  ///< the character boundary, word or line where the selection began
    terminal::Range range_;
    std::vector<Witness> witnesses_;
    std::array<terminal::Position, 4> anchors_;
};
