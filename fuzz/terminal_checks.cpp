// SPDX-License-Identifier: MIT
#include "fuzz/terminal_checks.h"

#include "fuzz/check.h"
#include "terminal/limits.h"
#include "terminal/text.h"

#include <algorithm>
#include <ctime>

using namespace terminal;

namespace {

bool is_graphic(char c) { return c >= 0x20 && c != 0x7f; }

/// A colour and its like as text.
void append_bytes(const auto& value, std::string& out) {
    out.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void append_style(const Style& style, std::string& out) {
    for (const Colour& colour : {style.foreground, style.background, style.underline_colour}) {
        append_bytes(colour, out);
    }
    for (const int flag : {static_cast<int>(style.underline), int{style.bold}, int{style.faint},
                           int{style.italic}, int{style.blink}, int{style.reverse}, int{style.invisible},
                           int{style.struck}, int{style.overlined}}) {
        out += static_cast<char>('0' + flag);
    }
}

void check_row(const Terminal& terminal, const Row& row) {
    require(std::ssize(row.cells) <= terminal.size().columns, "a row is longer than the screen is wide");
    bool tail_expected = false;
    for (const Cell& cell : row.cells) {
        require(cell.is_wide_tail() == tail_expected, "half a wide character");
        tail_expected = cell.is_wide();
        std::string text;
        terminal.append_text(cell, text);
        require(text.empty() == cell.is_wide_tail(), "a cell without text");
        require(std::ranges::all_of(text, [](char c) { return is_graphic(c) || c < 0; }),
                "a control in a cell");
        require(text.size() <= max_cluster_characters * 4, "a cluster is too long");
        require(terminal.link(cell.link).size() <= max_link, "a link is too long");
    }
    require(!tail_expected, "half a wide character at the end of a row");
}

}  // namespace

void CheckedClient::reply(std::string_view bytes) {
    // As a program asked for them (S7C1T, S8C1T): ESC and a letter, or DCS, CSI, ST and OSC of 8 bits.
    constexpr std::string_view introducers = "\x1b\x90\x9b\x9c\x9d";
    const auto introduces = [&](char c) { return introducers.find(c) != std::string_view::npos; };
    require(bytes.size() > 1 && introduces(bytes.front()), "a reply is no escape sequence");
    require(std::ranges::all_of(bytes, [&](char c) { return introduces(c) || (is_graphic(c) && c > 0); }),
            "a control character in a reply");
    replies += bytes;
}

void CheckedClient::title_changed(std::string_view title) {
    require(title.size() <= max_title, "a title is too long");
    require(std::ranges::all_of(title, [](char c) { return is_graphic(c) || c < 0; }),
            "a control in a title");
    told.append(title) += '\n';
}

void StampCheck::look(const Terminal& terminal) {
    for (RowId id = terminal.first_row(); id < terminal.end_row(); ++id) {
        const Row row = terminal.row(id);
        std::vector<Cell> cells(row.cells.begin(), row.cells.end());
        cells.resize(
            static_cast<std::size_t>(terminal.size().columns));  // cells not written look as blanks do
        for (Cell& cell : cells) {
            cell.glyph &= ~Cell::area_guarded;  // lost in the scrollback
        }
        Seen& before = seen_[id];
        require(row.stamp <= terminal.stamp(), "a row is newer than the picture");
        require(row.stamp >= before.stamp, "a row's stamp went back");
        require(row.stamp > before.stamp || before.cells.empty() || cells == before.cells,
                "a row changed and its stamp did not");
        before = {row.stamp, std::move(cells)};
    }
}

void check_picture(const Terminal& terminal) {
    const Size size = terminal.size();
    require(size.columns >= min_columns && size.columns <= max_columns, "too few or too many columns");
    require(size.rows >= min_rows && size.rows <= max_rows, "too few or too many rows");
    const Position cursor = terminal.cursor().position;
    require(cursor.row >= terminal.screen_top() && cursor.row < terminal.end_row(), "the cursor's row");
    require(cursor.column >= 0 && cursor.column < size.columns, "the cursor's column");
    require(terminal.first_row() <= terminal.screen_top(), "the first row");
    require(terminal.end_row() == terminal.screen_top() + size.rows, "the last row");
    for (RowId id = terminal.first_row(); id < terminal.end_row(); ++id) {
        check_row(terminal, terminal.row(id));
    }
}

void check_cost(Terminal& terminal, std::string_view bytes) {
    // With sanitizers and assertions a byte takes some microseconds; an eighth of a function that fills the
    // screen or lays all its text out anew takes as many nanoseconds for each cell as there are here.
    constexpr double base_seconds = 0.5;
    constexpr double seconds_a_cell = 100e-9;
    constexpr std::size_t most_memory = 16'000'000;
    const auto seconds = [] {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
    };
    const double before = seconds();
    terminal.write(bytes);
    const Size size = terminal.size();
    const double cells = static_cast<double>(bytes.size()) * (size.columns * size.rows + 1'000.0);
    require(seconds() - before < base_seconds + cells * seconds_a_cell, "an input costs too much time");
    require(terminal.scrollback_memory() < most_memory, "an input costs too much memory");
}

std::string picture(const Terminal& terminal) {
    std::string out;
    for (RowId id = terminal.first_row(); id < terminal.end_row(); ++id) {
        const Row row = terminal.row(id);
        for (const Cell& cell : row.cells) {
            terminal.append_text(cell, out);
            append_style(terminal.style(cell.style), out);
            out.append(terminal.link(cell.link)) += static_cast<char>('0' + (cell.glyph >> 28));
        }
        out += row.wrapped ? ">\n" : "\n";
    }
    const Cursor cursor = terminal.cursor();
    append_bytes(cursor.position.row - terminal.screen_top(), out);
    append_bytes(cursor.position.column, out);
    for (const bool flag : {cursor.visible, cursor.blinking, cursor.wrap_pending}) {
        out += flag ? '1' : '0';
    }
    return out;
}

std::string all_text(const Terminal& terminal) {
    std::string text = text_between(terminal, {{terminal.first_row(), 0}, {terminal.end_row(), 0}});
    text.resize(text.find_last_not_of('\n') + 1);
    return text;
}
