// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"
#include "terminal/utf8.h"
#include "terminal/width.h"

#include <algorithm>
#include <array>
#include <cassert>

// Characters: placing them, wrapping, and the attributes they get.

namespace terminal {

namespace {

constexpr char32_t first_extended = 0x80;
constexpr int cluster_work = 16;  // about as many cells are written in the time

std::size_t count_characters(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0) != 0x80; }));
}

}  // namespace

/// One past the last column for text: the right margin, unless the cursor is beyond it.
int Terminal::right_limit() const {
    return cursor_.column < margins_.right ? margins_.right : size().columns;
}

/// Says which styles, links and clusters are in use.
void Terminal::add_used(UsedIds& used) {
    for (const Screen* const screen : {&primary_, &alternate_}) {
        for (int row = 0; row < screen->size().rows; ++row) {
            std::ranges::for_each(screen->cells(row), [&used](const Cell& cell) { used.add(cell); });
        }
    }
    scrollback_.add_used(used);
    spend(static_cast<std::int64_t>(scrollback_.memory()));
    pen_.add_used(used);
}

void Terminal::print_ascii(std::string_view text) {
    last_character_ = static_cast<std::uint8_t>(text.back());
    if (inner_.insert || !sets_.plain()) {
        for (const char character : text) {
            put(sets_.take(character));
        }
        return;
    }
    print_plain(text);
}

void Terminal::print_plain(std::string_view text) {
    const Cell& attributes = pen_.cell(tables_);
    while (!text.empty()) {
        if (cursor_.wrap_pending) {
            wrap();
        }
        const int limit = right_limit();
        const auto room = static_cast<std::size_t>(limit - cursor_.column);
        std::size_t count = std::min(room, text.size());
        if (!inner_.autowrap && text.size() > room) {  // all that has no room overwrites the last column
            count = room > 1 ? room - 1 : 1;
            if (room <= 1) {
                text.remove_prefix(text.size() - 1);
            }
        }
        screen_->write_ascii(cursor_.row, cursor_.column, text.substr(0, count), attributes);
        text.remove_prefix(count);
        advance_cursor(static_cast<int>(count), limit);
    }
    assert(is_consistent());
}

/// With UTF-8 switched off the right half of the code table is a designated set's too.
void Terminal::print_latin1(std::span<const char32_t> text) {
    constexpr char32_t right_begin = 0xA0;
    constexpr char32_t right_end = 0x100;
    for (const char32_t character : text) {
        const bool right = character >= right_begin && character < right_end;
        const bool left = character < first_extended;
        put(left    ? sets_.take(static_cast<char>(character))
            : right ? sets_.take_right(character)
                    : character);
    }
    assert(is_consistent());
}

void Terminal::print(std::span<const char32_t> text) {
    if (encoding_ == Encoding::latin1) {
        print_latin1(text);
        return;
    }
    while (!text.empty()) {
        std::size_t count = print_run(text);
        if (count == 0 && character_width(text.front()) == 0) {
            count = combine(text);
        } else if (count == 0) {  // the first needs care
            const char32_t character = text.front();
            put(character < first_extended ? sets_.take(static_cast<char>(character)) : character);
            count = 1;
        }
        text = text.subspan(count);
    }
    assert(is_consistent());
}

/// Places characters from the front of `text` as long as they take cells of their own and the row has room;
/// returns how many.
std::size_t Terminal::print_run(std::span<const char32_t> text) {
    if (cursor_.wrap_pending) {
        return 0;
    }
    const int limit = right_limit();
    const std::size_t room = std::min(static_cast<std::size_t>(limit - cursor_.column), run_.size() - 1);
    const char32_t first_taken = sets_.plain() ? 0 : first_extended;
    const Cell attributes = pen_.cell(tables_);
    const Cell tail{attributes.glyph | Cell::wide_tail, attributes.style, attributes.link};
    std::size_t length = 0;
    std::size_t count = 0;
    for (; count < text.size(); ++count) {
        const char32_t character = text[count];
        const auto width = static_cast<std::size_t>(character_width(character));
        if (width == 0 || length + width > room || character < first_taken) {
            break;
        }
        const std::uint32_t wide = width == 2 ? Cell::wide : 0U;
        run_[length] = {attributes.glyph | character | wide, attributes.style, attributes.link};
        run_[length + 1] = tail;  // written over where the character is not wide
        length += width;
    }
    if (count > 0) {
        last_character_ = text[count - 1];
        make_room(static_cast<int>(length), limit);
        screen_->write(cursor_.row, cursor_.column, std::span(run_).first(length));
        advance_cursor(static_cast<int>(length), limit);
    }
    return count;
}

/// In insert mode what follows the cursor moves to the right.
void Terminal::make_room(int columns, int limit) {
    if (inner_.insert && cursor_.column >= margins_.left && cursor_.column < margins_.right) {
        spend(limit - cursor_.column);
        screen_->insert_cells(cursor_.row, cursor_.column, limit, columns, blank());
    }
}

/// Behind the last column the cursor stays on it, and the next character wraps.
void Terminal::advance_cursor(int columns, int limit) {
    cursor_.column += columns;
    fills_row_ = cursor_.column >= limit;
    if (fills_row_) {
        cursor_.column = limit - 1;
        cursor_.wrap_pending = inner_.autowrap;
    }
}

void Terminal::put(char32_t character) {
    const int width = character_width(character);
    if (width == 0) {
        combine({&character, 1});
        return;
    }
    last_character_ = character;
    put_visible(character, width);
}

void Terminal::put_visible(char32_t character, int width) {
    const Cell& attributes = pen_.cell(tables_);
    if (cursor_.wrap_pending) {
        wrap();
    }
    int limit = right_limit();
    if (cursor_.column + width > limit) {
        if (inner_.autowrap) {  // the last column stays empty
            screen_->erase(cursor_.row, cursor_.column, limit, Cell{});
            wrap();
            limit = right_limit();
        }
        cursor_.column = std::min(cursor_.column, limit - width);
    }
    make_room(width, limit);
    std::array<Cell, 2> cells;
    cells.fill(attributes);
    cells[0].glyph |= character | (width == 2 ? Cell::wide : 0);
    cells[1].glyph |= Cell::wide_tail;
    screen_->write(cursor_.row, cursor_.column, std::span(cells).first(static_cast<std::size_t>(width)));
    advance_cursor(width, limit);
}

/// Joins the combining characters at the front of `text` to the one before the cursor; returns how many there
/// are. Those that find none are dropped, and so are those too many.
std::size_t Terminal::combine(std::span<const char32_t> text) {
    const auto end = std::ranges::find_if(text, [](char32_t each) { return character_width(each) != 0; });
    const auto count = static_cast<std::size_t>(end - text.begin());
    const bool behind_last = cursor_.wrap_pending || (fills_row_ && last_character_ != 0);
    int column = behind_last ? cursor_.column : cursor_.column - 1;
    if (column > 0 && screen_->cell(cursor_.row, column).is_wide_tail()) {
        --column;
    }
    if (column < 0) {
        return count;
    }
    Cell cell = screen_->cell(cursor_.row, column);
    std::string cluster;
    append_text(cell, cluster);
    const std::size_t present = count_characters(cluster);
    if (present >= max_cluster_characters) {
        return count;
    }
    for (const char32_t character : text.first(std::min(count, max_cluster_characters - present))) {
        append_utf8(character, cluster);
    }
    spend(cluster_work);
    const auto id = tables_.intern_cluster(cluster);
    if (id) {
        cell.glyph = (cell.glyph & (Cell::wide | Cell::guarded | Cell::area_guarded)) | Cell::cluster | *id;
        screen_->replace(cursor_.row, column, cell);
    }
    return count;
}

/// The text goes on in the next row.
void Terminal::wrap() {
    // Below the bottom margin the last row is written over.
    const bool goes_on = cursor_.row == margins_.bottom - 1 || cursor_.row < size().rows - 1;
    const bool joined = goes_on && margins_.width() == size().columns;
    screen_->set_wrapped(cursor_.row, joined);
    line_feed();
    // Scrolling parts the rows at the bottom margin; these two belong together.
    if (joined && cursor_.row > 0) {
        screen_->set_wrapped(cursor_.row - 1, true);
    }
    cursor_.column = cursor_.column < margins_.left ? 0 : margins_.left;
}

/// Row by row, from a row made once: so much can be asked for that it must be no more work than other text.
void Terminal::rep(Function function) {
    if (last_character_ == 0) {
        return;
    }
    const int width = character_width(last_character_);
    int rest = std::min(function.parameters.count(0), size().columns * size().rows);
    if (!inner_.autowrap) {
        rest = std::min(rest, size().columns);  // more would write over the last column
    }
    spend(rest * width);
    const Cell& attributes = pen_.cell(tables_);
    const std::uint32_t wide = width == 2 ? Cell::wide : 0U;
    for (std::size_t at = 0; at < run_.size(); ++at) {
        const bool tail = width == 2 && at % 2 == 1;
        run_[at] = attributes;
        run_[at].glyph |= tail ? Cell::wide_tail : last_character_ | wide;
    }
    const int longest = static_cast<int>(run_.size()) - 1;
    while (rest > 0) {
        if (cursor_.wrap_pending) {
            wrap();
        }
        const int limit = right_limit();
        const int count = std::min(std::min(limit - cursor_.column, longest) / width, rest);
        const int columns = count * width;
        if (columns > 0) {
            make_room(columns, limit);
            screen_->write(cursor_.row, cursor_.column,
                           std::span(run_).first(static_cast<std::size_t>(columns)));
            advance_cursor(columns, limit);
        } else {
            put_visible(last_character_, width);
        }
        rest -= std::max(count, 1);
    }
}

}  // namespace terminal
