// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <cassert>
#include <optional>

// Another size: the lines of the primary screen flow into rows of the new width, and rows move between screen
// and scrollback so that the cursor's line stays in sight.

namespace terminal {

/// The text of the screen as logical lines while it is laid out anew.
class Terminal::Flow {
  public:
    /// Takes the first `rows` rows of a screen. A line that only blanks of the others belong to ends with
    /// them. `cursor` is among them.
    Flow(const Screen& screen, int rows, const CursorState& cursor) {
        for (int row = 0; row < rows; ++row) {
            if (row == cursor.row) {
                const bool goes_on = !lines_.empty() && lines_.back().open;
                cursor_line_ = lines_.size() - (goes_on ? 1 : 0);
                cursor_offset_ =
                    static_cast<std::size_t>(cursor.column) + (goes_on ? lines_.back().cells.size() : 0);
            }
            const bool cut = row + 1 == rows && rows < screen.size().rows;
            append(screen.cells(row), screen.wrapped(row) && !cut);
        }
    }

    [[nodiscard]] std::size_t row_count() const { return rows_.size(); }

    /// Puts a piece of text from the scrollback in front. `joined`: its line goes on in the first one here.
    void prepend(std::vector<Cell> cells, bool joined) {
        if (lines_.empty() || !joined) {
            lines_.insert(lines_.begin(), Line{std::move(cells), false});
            ++cursor_line_;
            return;
        }
        cursor_offset_ += cursor_line_ == 0 ? cells.size() : 0;
        cells.insert(cells.end(), lines_.front().cells.begin(), lines_.front().cells.end());
        lines_.front().cells = std::move(cells);
    }

    void lay_out(int columns) {
        rows_.clear();
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            lay_out(lines_[i], static_cast<std::size_t>(columns), i == cursor_line_);
        }
    }
    /// The row that the cursor is in now.
    [[nodiscard]] std::size_t cursor_row() const { return cursor_row_; }

    struct Row {
        std::span<const Cell> cells;
        bool wrapped;
    };
    [[nodiscard]] const Row& row(std::size_t index) const { return rows_[index]; }

  private:
    struct Line {
        std::vector<Cell> cells;
        bool open;  // more of it is to come
    };

    void append(std::span<const Cell> cells, bool wrapped) {
        while (!wrapped && !cells.empty() && cells.back() == Cell{}) {
            cells = cells.first(cells.size() - 1);
        }
        if (lines_.empty() || !lines_.back().open) {
            lines_.emplace_back();
        }
        Line& line = lines_.back();
        line.cells.insert(line.cells.end(), cells.begin(), cells.end());
        line.open = wrapped;
    }

    void lay_out(const Line& line, std::size_t columns, bool has_cursor) {
        std::span<const Cell> rest = line.cells;
        do {
            if (has_cursor && line.cells.size() - rest.size() <= cursor_offset_) {
                cursor_row_ = rows_.size();
            }
            std::size_t length = std::min(rest.size(), columns);
            if (length < rest.size() && rest[length].is_wide_tail()) {
                --length;
            }
            rows_.push_back(
                {rest.first(length), length < rest.size() || (line.open && rest.size() == length)});
            rest = rest.subspan(length);
        } while (!rest.empty());
    }

    std::vector<Line> lines_;
    std::vector<Row> rows_;
    std::size_t cursor_line_ = 0;
    std::size_t cursor_offset_ = 0;  // in its line
    std::size_t cursor_row_ = 0;
};

std::vector<Mark> Terminal::marks(std::span<const Position> positions) const {
    std::vector<Mark> result;
    for (const Position& position : positions) {
        if (position.row < scrollback_.end_row()) {
            const bool exists = position.row >= scrollback_.begin_row();
            result.push_back(exists ? scrollback_.mark(position) : Mark{});
            continue;
        }
        const int row = static_cast<int>(std::min<RowId>(position.row - primary_.top(), size().rows - 1));
        Mark mark{0, position.column};
        if (primary_.wrapped(row)) {
            mark.offset = std::min<std::int64_t>(mark.offset, std::ssize(primary_.cells(row)));
        }
        int line_begin = row;
        while (line_begin > 0 && primary_.wrapped(line_begin - 1)) {
            mark.offset += std::ssize(primary_.cells(--line_begin));
        }
        for (int before = 0; before < line_begin; ++before) {
            mark.line += primary_.wrapped(before) ? 0 : 1;
        }
        result.push_back(scrollback_.from_beginning(mark));
    }
    return result;
}

/// Where the text of a mark is now. The column may be one past the last, at the end of a full row.
Position Terminal::position(Mark mark) const {
    if (const auto position = scrollback_.find(mark)) {
        return *position;
    }
    int row = 0;
    for (; mark.line > 0 && row < size().rows - 1; ++row) {
        mark.line -= primary_.wrapped(row) ? 0 : 1;
    }
    while (primary_.wrapped(row) && row < size().rows - 1 && mark.offset >= std::ssize(primary_.cells(row))) {
        mark.offset -= std::ssize(primary_.cells(row++));
    }
    return {primary_.top() + row, static_cast<int>(std::min<std::int64_t>(mark.offset, size().columns))};
}

void Terminal::resize(Size wanted, std::span<Position> anchors) {
    wanted = within_limits(wanted);
    const Size before = size();
    if (wanted == before) {
        return;
    }
    resize_primary(wanted, anchors);
    if (is_alternate()) {
        resize_alternate(wanted);
    }
    tabs_.resize(wanted.columns);
    reset_margins();
    epoch_ = ++clock_;
    finish();
}

/// Lays the primary screen out anew. Its cursor is the saved one while the alternate screen is shown.
void Terminal::resize_primary(Size wanted, std::span<Position> anchors) {
    CursorState& cursor = is_alternate() ? saved_[0].cursor : cursor_;
    CursorState& saved_cursor = saved_[0].cursor;
    std::vector<Position> positions(anchors.begin(), anchors.end());
    for (const CursorState* const state : {&cursor, &saved_cursor}) {
        positions.push_back({primary_.top() + state->row, state->column + (state->wrap_pending ? 1 : 0)});
    }
    const std::vector<Mark> all_marks = marks(positions);

    flow_primary(wanted, cursor);

    for (std::size_t i = 0; i < anchors.size(); ++i) {
        if (anchors[i].row < alternate_.top() || !is_alternate()) {
            anchors[i] = position(all_marks[i]);
        }
    }
    cursor = cursor_at(position(all_marks[anchors.size()]));
    saved_cursor = cursor_at(position(all_marks[anchors.size() + 1]));
}

/// Rows below the text and the cursor are given up first when the screen gets lower, then rows go to the
/// scrollback, and what does not fit below the cursor's row then is given up too, as other terminals do: a
/// program that moved up paints what is below anew. When the screen gets higher, rows come back from the
/// scrollback.
void Terminal::flow_primary(Size wanted, const CursorState& cursor) {
    const Size before = primary_.size();
    int used = before.rows;
    while (used > cursor.row + 1 && primary_.is_blank(used - 1)) {
        --used;
    }
    Flow flow(primary_, used, cursor);
    if (scrollback_.open()) {
        if (auto piece = scrollback_.pop()) {
            flow.prepend(std::move(*piece), true);
        }
    }
    scrollback_.reflow(wanted.columns);
    flow.lay_out(wanted.columns);

    const int count = static_cast<int>(flow.row_count());
    const int room = std::max(wanted.rows - count, 0);
    const bool was_full = used == before.rows;
    const int pulled = was_full ? room : std::clamp(wanted.rows - before.rows, 0, room);
    const int wish = std::min(count + pulled, wanted.rows);
    while (static_cast<int>(flow.row_count()) < wish) {
        const bool joined = scrollback_.open();
        auto piece = scrollback_.pop();
        if (!piece) {
            break;
        }
        flow.prepend(std::move(*piece), joined);
        flow.lay_out(wanted.columns);
    }
    const std::size_t shown = std::min(flow.row_count(), static_cast<std::size_t>(wish));
    const std::size_t first = std::min(flow.row_count() - shown, flow.cursor_row());
    const bool cut = first + shown < flow.row_count();
    for (std::size_t i = 0; i < first; ++i) {
        scrollback_.push(flow.row(i).cells, flow.row(i).wrapped, ++clock_);
    }
    primary_.reset(wanted, scrollback_.end_row());
    for (std::size_t i = 0; i < shown; ++i) {
        const bool ends = cut && i + 1 == shown;
        primary_.set_row(static_cast<int>(i), flow.row(first + i).cells,
                         flow.row(first + i).wrapped && !ends);
    }
}

/// A cursor at a position of the primary screen. Behind a full row a wrap is pending.
Terminal::CursorState Terminal::cursor_at(Position position) const {
    const int row = static_cast<int>(std::max<RowId>(position.row - primary_.top(), 0));
    const int columns = size().columns;
    if (position.column < columns) {
        return {row, position.column, false};
    }
    return {row, columns - 1, std::ssize(primary_.cells(row)) == columns};
}

/// A full-screen program paints its screen anew, so that cutting serves it best; the cursor's row stays.
void Terminal::resize_alternate(Size wanted) {
    const int drop_top = std::max(cursor_.row - wanted.rows + 1, 0);
    alternate_.resize_fixed(wanted, drop_top);
    move_to(cursor_.row - drop_top, cursor_.column);
    CursorState& saved_cursor = saved_[1].cursor;
    saved_cursor = {std::min(saved_cursor.row, wanted.rows - 1),
                    std::min(saved_cursor.column, wanted.columns - 1), false};
}

}  // namespace terminal
