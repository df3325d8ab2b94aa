// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"
#include "terminal/utf8.h"

#include <algorithm>
#include <optional>
#include <utility>

// DEC's rectangular area operations (VT420 manual).

namespace terminal {

namespace {

/// As SGR, but only what DECCARA changes; xterm lets it change colours too.
void change_attributes(const Parameters& parameters, std::size_t first, Style& style) {
    apply_sgr(parameters, style, first);
}

void reverse_attributes(const Parameters& parameters, std::size_t first, Style& style) {
    const auto reverse = [&style](int code) {
        const auto concerns = [code](int attribute) { return code == 0 || code == attribute; };
        style.bold = concerns(1) ? !style.bold : style.bold;
        style.blink = concerns(5) ? !style.blink : style.blink;
        style.reverse = concerns(7) ? !style.reverse : style.reverse;
        style.invisible = concerns(8) ? !style.invisible : style.invisible;
        if (concerns(4)) {
            style.underline = style.underline == Underline::none ? Underline::single : Underline::none;
        }
    };
    if (first >= parameters.size()) {
        reverse(0);
    }
    for (std::size_t i = first; i < parameters.size(); ++i) {
        reverse(parameters.get(i));
    }
}

}  // namespace

/// Top, left, bottom and right from parameter `first` on, within the margins in origin mode. Empty when they
/// make no rectangle.
Region Terminal::rectangle(Function function, std::size_t first) const {
    const Region within = inner_.origin ? margins_ : screen_->all();
    const auto edge = [&function](std::size_t index, int begin, int end, int missing) {
        const int value = function.parameters.get(index);
        return value == 0 ? missing : std::min(begin + value, end);
    };
    const Region region{edge(first, within.top, within.bottom, within.top + 1) - 1,
                        edge(first + 2, within.top, within.bottom, within.bottom),
                        edge(first + 1, within.left, within.right, within.left + 1) - 1,
                        edge(first + 3, within.left, within.right, within.right)};
    return region.height() > 0 && region.width() > 0 ? region : Region{};
}

void Terminal::decera(Function function) { fill(rectangle(function, 0), blank()); }

void Terminal::decsera(Function function) {
    const Region region = rectangle(function, 0);
    spend(region.height() * region.width());
    for (int row = region.top; row < region.bottom; ++row) {
        screen_->erase_unguarded(row, region.left, region.right, Cell::guarded);
    }
}

void Terminal::decfra(Function function) {
    const int character = function.parameters.get(0);
    const bool printable =
        (character >= 0x20 && character <= 0x7E) || (character >= 0xA0 && character <= 0xFF);
    if (printable) {
        Cell cell = pen_.cell(tables_);
        cell.glyph |= static_cast<std::uint32_t>(character);
        fill(rectangle(function, 1), cell);
    }
}

void Terminal::deccra(Function function) {
    Region from = rectangle(function, 0);
    const Region within = inner_.origin ? margins_ : screen_->all();
    const int row = within.top + function.parameters.count(5) - 1;
    const int column = within.left + function.parameters.count(6) - 1;
    from.bottom = std::min(from.bottom, from.top + within.bottom - row);
    from.right = std::min(from.right, from.left + within.right - column);
    if (from.height() > 0 && from.width() > 0) {
        spend(from.height() * from.width());
        screen_->copy(from, row, column);
    }
}

void Terminal::deccara(Function function) { change_styles(function, change_attributes); }
void Terminal::decrara(Function function) { change_styles(function, reverse_attributes); }

/// Changes the styles of a rectangle, or of the text from its first corner to its last (DECSACE).
void Terminal::change_styles(Function function, void (*change)(const Parameters&, std::size_t, Style&)) {
    const Region region = rectangle(function, 0);
    spend(region.height() * size().columns);
    std::optional<std::pair<StyleId, StyleId>> known;  // neighbours mostly have one style
    for (int row = region.top; row < region.bottom; ++row) {
        const bool from_edge = !whole_rectangles_ && row > region.top;
        const bool to_edge = !whole_rectangles_ && row < region.bottom - 1;
        const int end = to_edge ? size().columns : region.right;
        for (int column = from_edge ? 0 : region.left; column < end; ++column) {
            Cell cell = screen_->cell(row, column);
            if (!known || known->first != cell.style) {
                Style style = tables_.style(cell.style);
                change(function.parameters, 4, style);
                known = {cell.style, tables_.intern(style)};
            }
            cell.style = known->second;
            screen_->replace(row, column, cell);
        }
    }
}

namespace {

// What XTCHECKSUM changes of the checksum, by bits of its parameter. (Bit 5 is about sets of 7-bit
// characters, which a screen of Unicode characters does not know.)
constexpr int checksum_not_negated = 1;
constexpr int checksum_without_attributes = 2;
constexpr int checksum_with_blanks = 4;
constexpr int checksum_of_written_only = 8;
constexpr int checksum_of_whole_characters = 16;

}  // namespace

void Terminal::xtchecksum(Function function) { checksum_flags_ = function.parameters.get(0); }

/// `id ; page ; rectangle`. Off unless the user wants it: with it whatever is shown can read what else is
/// shown.
void Terminal::decrqcra(Function function) {
    if (permissions_.checksum) {
        report_checksum(function.parameters.get(0), checksum(rectangle(function, 2)));
    }
}

/// A character with its attributes. A VT420 counts protection too; xterm does not, and neither do we.
int Terminal::checksum(const Cell& cell) const {
    int sum = cell.character() == 0 ? ' ' : static_cast<int>(cell.character());
    if (cell.is_cluster()) {
        const std::string& text = tables_.cluster(cell.character());
        const char* from = text.data();
        sum = static_cast<int>(take_utf8(from));
        while ((checksum_flags_ & checksum_of_whole_characters) != 0 && from < text.data() + text.size()) {
            sum += static_cast<int>(take_utf8(from));
        }
    }
    if ((checksum_flags_ & checksum_of_whole_characters) == 0) {
        sum &= 0xFF;
    }
    if ((checksum_flags_ & checksum_without_attributes) != 0) {
        return sum;
    }
    const Style& style = tables_.style(cell.style);
    const auto add = [&sum](bool set, int weight) { sum += set ? weight : 0; };
    add(style.invisible, 0x08);
    add(style.underline != Underline::none, 0x10);
    add(style.reverse, 0x20);
    add(style.blink, 0x40);
    add(style.bold, 0x80);
    return sum;
}

/// The negated sum. Blanks at the ends of rows do not count, except as the very first character.
int Terminal::checksum(const Region& region) const {
    int sum = 0;
    bool first = true;
    for (int row = region.top; row < region.bottom; ++row) {
        int blanks = 0;
        for (int column = region.left; column < region.right; ++column) {
            const Cell cell = screen_->cell(row, column);
            const bool unwritten = cell.character() == 0 && !cell.is_cluster();
            if (cell.is_wide_tail() || (unwritten && (checksum_flags_ & checksum_of_written_only) != 0)) {
                continue;
            }
            const int value = checksum(cell);
            if (value == ' ' && !first) {
                blanks += value;
                continue;
            }
            sum += blanks + value;
            blanks = 0;
            first = false;
        }
        sum += (checksum_flags_ & checksum_with_blanks) != 0 ? blanks : 0;
    }
    return (checksum_flags_ & checksum_not_negated) != 0 ? sum : -sum;
}

void Terminal::decsace(Function function) { whole_rectangles_ = function.parameters.get(0) == 2; }

}  // namespace terminal
