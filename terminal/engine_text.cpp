// SPDX-License-Identifier: MIT
#include "terminal/engine.h"
#include "terminal/utf8.h"
#include "terminal/width.h"

#include <algorithm>
#include <cassert>

// Characters: placing them, wrapping, and the attributes they get.

namespace terminal {

namespace {

constexpr char32_t first_extended = 0x80;

std::size_t count_characters(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0) != 0x80; }));
}

}  // namespace

std::size_t StyleHash::operator()(const Style& style) const {
    const auto colour = [](const Colour& value) {
        return static_cast<std::uint64_t>(value.kind) << 24 | static_cast<std::uint64_t>(value.red) << 16 |
               static_cast<std::uint64_t>(value.green) << 8 | value.blue;
    };
    const auto flag = [](bool set, unsigned bit) { return static_cast<std::uint64_t>(set) << bit; };
    const std::uint64_t flags = static_cast<std::uint64_t>(style.underline) << 8 | flag(style.bold, 0) |
                                flag(style.faint, 1) | flag(style.italic, 2) | flag(style.blink, 3) |
                                flag(style.reverse, 4) | flag(style.invisible, 5) | flag(style.struck, 6) |
                                flag(style.overlined, 7);
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;  // spreads what differs in few bits
    std::uint64_t hash = (colour(style.foreground) | colour(style.background) << 32) * odd;
    hash = ((hash >> 29) ^ hash ^ (colour(style.underline_colour) | flags << 32)) * odd;
    return static_cast<std::size_t>(hash >> 32);
}

std::size_t LinkHash::operator()(const Link& link) const {
    const std::hash<std::string> hash;
    return hash(link.address) * 31 + hash(link.id);
}

/// One past the last column for text: the right margin, unless the cursor is beyond it.
int Engine::right_limit() const { return cursor_.column < margins_.right ? margins_.right : size().columns; }

const Cell& Engine::pen() {
    if (pen_changed_) {
        refresh_pen();
    }
    return pen_;
}

const Cell& Engine::blank() {
    if (pen_changed_) {
        refresh_pen();
    }
    return blank_;
}

void Engine::refresh_pen() {
    pen_changed_ = false;
    pen_.glyph = guarded_ ? Cell::guarded : 0;
    pen_.style = intern_style(style_);
    Style erased;
    erased.background = style_.background;
    blank_.style = intern_style(erased);
}

/// The number of a style; the plain one when there are too many styles.
StyleId Engine::intern_style(const Style& style) {
    auto id = styles_.intern(style);
    if (!id && styles_.wants_collection()) {
        collect_unused();
        id = styles_.intern(style);
    }
    return static_cast<StyleId>(id.value_or(0));
}

/// Frees the numbers of styles, links and clusters that no cell has any more.
void Engine::collect_unused() {
    UsedIds used;
    used.styles.resize(styles_.end_id());
    used.links.resize(links_.end_id());
    used.clusters.resize(clusters_.end_id());
    for (const Screen* const screen : {&primary_, &alternate_}) {
        for (int row = 0; row < screen->size().rows; ++row) {
            std::ranges::for_each(screen->cells(row), [&used](const Cell& cell) { used.add(cell); });
        }
    }
    scrollback_.add_used(used);
    used.add({0, pen_.style, pen_.link});
    used.add(blank_);
    styles_.retain(used.styles);
    links_.retain(used.links);
    clusters_.retain(used.clusters);
}

void Engine::print_ascii(std::string_view text) {
    last_character_ = static_cast<std::uint8_t>(text.back());
    if (inner_.insert || !sets_.plain()) {
        for (const char character : text) {
            put(sets_.take(character));
        }
        return;
    }
    print_plain(text);
}

void Engine::print_plain(std::string_view text) {
    const Cell& attributes = pen();
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
        cursor_.column += static_cast<int>(count);
        if (cursor_.column == limit) {
            cursor_.column = limit - 1;
            cursor_.wrap_pending = inner_.autowrap;
        }
    }
    assert(is_consistent());
}

void Engine::print(std::span<const char32_t> text) {
    for (const char32_t character : text) {
        if (character < first_extended) {
            put(sets_.take(static_cast<char>(character)));
        } else {
            put(character);
        }
    }
    assert(is_consistent());
}

void Engine::put(char32_t character) {
    const int width = character_width(character);
    if (width == 0) {
        combine(character);
        return;
    }
    last_character_ = character;
    put_visible(character, width);
}

void Engine::put_visible(char32_t character, int width) {
    const Cell& attributes = pen();
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
    if (inner_.insert) {
        screen_->insert_cells(cursor_.row, cursor_.column, limit, width, blank());
    }
    const std::uint32_t wide = width == 2 ? Cell::wide : 0;
    screen_->write(cursor_.row, cursor_.column,
                   {attributes.glyph | character | wide, attributes.style, attributes.link});
    cursor_.column += width;
    if (cursor_.column >= limit) {
        cursor_.column = limit - 1;
        cursor_.wrap_pending = inner_.autowrap;
    }
}

/// Joins a combining character to the one before the cursor. One that finds none is dropped, and so is one
/// too many.
void Engine::combine(char32_t character) {
    int column = cursor_.wrap_pending ? cursor_.column : cursor_.column - 1;
    if (column > 0 && screen_->cell(cursor_.row, column).is_wide_tail()) {
        --column;
    }
    if (column < 0) {
        return;
    }
    Cell cell = screen_->cell(cursor_.row, column);
    std::string text;
    append_text(cell, text);
    if (count_characters(text) >= max_cluster_characters) {
        return;
    }
    append_utf8(character, text);
    auto id = clusters_.intern(text);
    if (!id && clusters_.wants_collection()) {
        collect_unused();
        id = clusters_.intern(text);
    }
    if (id) {
        cell.glyph = (cell.glyph & (Cell::wide | Cell::guarded)) | Cell::cluster | *id;
        screen_->replace(cursor_.row, column, cell);
    }
}

/// The text goes on in the next row.
void Engine::wrap() {
    const bool whole_row = margins_.width() == size().columns;
    screen_->set_wrapped(cursor_.row, whole_row);
    line_feed();
    // Scrolling parts the rows at the bottom margin; these two belong together.
    if (whole_row && cursor_.row > 0) {
        screen_->set_wrapped(cursor_.row - 1, true);
    }
    cursor_.column = cursor_.column < margins_.left ? 0 : margins_.left;
}

void Engine::rep(Function function) {
    if (last_character_ == 0) {
        return;
    }
    const int width = character_width(last_character_);
    const int count = std::min(function.parameters.count(0), size().columns * size().rows);
    for (int i = 0; i < count; ++i) {
        put_visible(last_character_, width);
    }
}

}  // namespace terminal
