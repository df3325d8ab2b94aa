// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include "terminal/utf8.h"

#include <algorithm>
#include <cassert>
#include <limits>

namespace terminal {

namespace {

/// Rows of the alternate screen are numbered from here on, so that a position on one screen is never taken
/// for one on the other.
constexpr RowId alternate_top = RowId{1} << 40;

}  // namespace

Terminal::Terminal(const Options& options, Client& client)
    : client_(client),
      scrollback_(options.scrollback_rows, within_limits(options.size).columns),
      primary_(within_limits(options.size), 0, clock_),
      alternate_({min_columns, min_rows}, alternate_top, clock_),
      margins_(primary_.all()),
      tabs_(size().columns),
      colours_([&client](std::string_view name) { return client.named_colour(name); }),
      tables_([this](UsedIds& used) { add_used(used); }),
      parser_(*this),
      local_parser_(*this) {}

void Terminal::write(std::string_view bytes) {
    (void)write_within(bytes, std::numeric_limits<std::int64_t>::max());
}

std::size_t Terminal::write_within(std::string_view bytes, std::int64_t work) {
    work_left_ = work;
    const std::size_t taken = parser_.feed(bytes);
    finish();
    return taken;
}

void Terminal::write_local(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        local_parser_.feed(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        local_parser_.feed("\r\n");
        text.remove_prefix(end + 1);
    }
    finish();
}

/// A cursor that only moved is a change of the picture too.
void Terminal::finish() {
    if (cursor_ != shown_cursor_) {
        shown_cursor_ = cursor_;
        count_change();
    }
    if (!replies_.empty()) {
        hand_over_replies();
    }
    assert(is_wholly_consistent());
}

void Terminal::hand_over_replies() {
    client_.reply(replies_);
    replies_.clear();
}

void Terminal::clear_all() {
    scrollback_.clear();
    fill(screen_->all(), Cell{});
    move_to(0, 0);
    count_change();
    finish();
}

void Terminal::clear_all_but_line() {
    int first = cursor_.row;
    while (first > 0 && screen_->wrapped(first - 1)) {
        --first;
    }
    int end = cursor_.row + 1;
    while (end < size().rows && screen_->wrapped(end - 1)) {
        ++end;
    }
    scrollback_.clear();
    screen_->scroll_up(screen_->all(), first, Cell{});
    part_from_scrollback();
    fill({end - first, size().rows, 0, size().columns}, Cell{});
    cursor_.row -= first;
    count_change();
    finish();
}

Cursor Terminal::cursor() const {
    return {{screen_->top() + cursor_.row, cursor_.column},
            inner_.cursor_visible,
            inner_.cursor_blinking,
            cursor_shape_,
            cursor_.wrap_pending};
}

RowId Terminal::first_row() const { return is_alternate() ? screen_->top() : scrollback_.begin_row(); }

Row Terminal::row(RowId id) const {
    if (id >= screen_->top() && id < end_row()) {
        const int row = static_cast<int>(id - screen_->top());
        return {screen_->cells(row), screen_->wrapped(row), std::max(screen_->stamp(row), epoch_)};
    }
    if (is_alternate() || id < scrollback_.begin_row() || id >= scrollback_.end_row()) {
        return {};
    }
    const Scrollback::RowState state = scrollback_.row(id, row_buffer_);
    return {row_buffer_, state.wrapped, std::max(state.stamp, epoch_)};
}

void Terminal::append_text(const Cell& cell, std::string& out) const {
    if (cell.is_cluster()) {
        out += tables_.cluster(cell.character());
    } else if (cell.character() != 0) {
        append_utf8(cell.character(), out);
    } else if (!cell.is_wide_tail()) {
        out += ' ';
    }
}

void Terminal::set_standard_colours(Rgb foreground, Rgb background, Rgb cursor,
                                    std::span<const Rgb> palette) {
    colours_.palette().set_standard(foreground, background, cursor, palette);
    palette_changed();
}

/// What holds after each operation, as far as it costs nothing to speak of.
bool Terminal::is_consistent() const {
    const Size limits = size();
    return cursor_.row >= 0 && cursor_.row < limits.rows && cursor_.column >= 0 &&
           cursor_.column < limits.columns && margins_.top >= 0 && margins_.top < margins_.bottom &&
           margins_.bottom <= limits.rows && margins_.left >= 0 && margins_.left < margins_.right &&
           margins_.right <= limits.columns && screen_->size() == limits &&
           screen_->is_consistent(cursor_.row) && primary_.top() == scrollback_.end_row();
}

bool Terminal::is_wholly_consistent() const {
    for (int row = 0; row < size().rows; ++row) {
        if (!screen_->is_consistent(row)) {
            return false;
        }
    }
    return is_consistent() && tabs_.columns() == size().columns &&
           scrollback_.begin_row() <= scrollback_.end_row();
}

}  // namespace terminal
