// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "fuzz/terminal_checks.h"
#include "terminal/limits.h"
#include "terminal/text.h"

#include <algorithm>
#include <array>

// What a program writes, with what the user does in between. The input is written to a terminal as it is;
// each byte FE in it, which no UTF-8 text holds, begins a step of three bytes instead: which one, and two
// numbers.

using namespace terminal;

namespace {

constexpr char step_mark = '\xfe';
constexpr std::size_t step_bytes = 3;  // behind the mark
constexpr std::size_t scrollback_rows = 50;

/// Mostly small, sometimes long or wide, but never both: that would only be slow.
Size size_of(std::uint8_t columns, std::uint8_t rows) {
    const auto extent = [](std::uint8_t number) { return number < 0xfe ? number % 100 : 2 * max_columns; };
    constexpr int most_cells = 30'000;
    const int wide = extent(columns);
    return {wide, std::min(extent(rows), most_cells / std::max(wide, 1))};
}

/// A position on the screen or in the scrollback.
Position position(const Terminal& terminal, std::uint8_t row, std::uint8_t column) {
    const RowId rows = terminal.end_row() - terminal.first_row();
    return {terminal.first_row() + row % rows, column % terminal.size().columns};
}

/// Nothing where no character is.
/// What is seen of a cell, and its protection by DECSCA: that of a guarded area may be lost.
Cell cell_at(const Terminal& terminal, Position at) {
    const Row row = terminal.row(at.row);
    Cell cell = at.column < std::ssize(row.cells) ? row.cells[static_cast<std::size_t>(at.column)] : Cell{};
    cell.glyph &= ~Cell::area_guarded;
    return cell;
}

/// Whether a text holds this beginning, wherever it stands, and behind it as much of the rest as there is
/// room for. Empty rows at the end are no text, nor are blanks where a line was cut.
bool keeps(const std::string& now, std::string_view beginning, std::string_view rest) {
    const std::size_t end_of_text = beginning.find_last_not_of(" \n") + 1;  // 0 behind npos
    for (const std::string& text : {now, now + std::string(beginning.substr(end_of_text))}) {
        for (std::size_t at = text.find(beginning); at != text.npos; at = text.find(beginning, at + 1)) {
            std::string behind = text.substr(at + beginning.size());
            behind.erase(behind.find_last_not_of('\n') + 1);
            if (rest.starts_with(behind)) {
                return true;
            }
        }
    }
    return false;
}

/// Another size loses no text, but for what has no room below the cursor, and positions stay with theirs. The
/// beginning of a line that was cut at the scrollback's limit may come back.
void resize(Terminal& terminal, std::uint8_t columns, std::uint8_t rows) {
    const bool primary = !terminal.modes().alternate_screen;
    const std::string text = primary ? all_text(terminal) : "";
    const Position cursor = terminal.cursor().position;
    const std::string above_cursor =
        primary ? text_between(terminal, {{terminal.first_row(), 0}, {cursor.row, 0}}) : "";
    std::array anchors{position(terminal, rows, columns), terminal.cursor().position};
    const Cell anchored = cell_at(terminal, anchors[0]);
    terminal.resize(size_of(columns, rows), anchors);
    if (!primary) {
        return;
    }
    const std::string now = all_text(terminal);
    require(now.ends_with(text) || keeps(now, above_cursor, text.substr(above_cursor.size())),
            "a resize changes the text");
    require(!now.ends_with(text) || anchored.glyph == 0 || cell_at(terminal, anchors[0]) == anchored,
            "an anchor left its text");
}

/// What is told of a position lies within the rows.
void ask(const Terminal& terminal, Position at) {
    const auto require_place = [&](Position asked) {
        require(asked.row >= terminal.first_row() && asked.row < terminal.end_row(),
                "a row that is not there");
        require(asked.column >= 0 && asked.column <= terminal.size().columns, "a column that is not there");
    };
    const Range word = word_at(terminal, at);
    for (const Range& range : {word, logical_line(terminal, at.row), line_to_cursor(terminal)}) {
        require_place(range.begin);
        require_place(range.end);
    }
    line_to_cursor_text(terminal);
    line_behind_cursor_text(terminal);
    const std::string needle = text_between(terminal, word);
    const auto direction = at.column % 2 == 0 ? SearchDirection::backward : SearchDirection::forward;
    (void)find(terminal, needle, at, direction, LetterCase::ignored);
    if (const auto found = find(terminal, needle, at, direction, LetterCase::significant)) {
        require_place(found->begin);
        const bool cut = needle.ends_with(' ');  // blanks at the end of a line are no text
        const std::string text = text_between(terminal, *found);
        require(cut || text.find(needle) != std::string::npos, "what was found is not there");
    }
}

/// Encodings, forms of controls, and the VT52's sequences.
constexpr std::array<std::string_view, 6> languages{"\x1b%@", "\x1b%G", "\x1b[?2l",
                                                    "\x1b<",  "\x1b G", "\x1b F"};

void write_both(Terminal& whole, Terminal& pieces, std::string_view bytes) {
    whole.write(bytes);
    pieces.write(bytes);
}

/// What the user does in between; the checks are made on the first terminal.
void take_step(Terminal& whole, Terminal& pieces, char step, std::uint8_t first, std::uint8_t second) {
    switch (step) {
        case 'r':
            resize(whole, first, second);
            return pieces.resize(size_of(first, second));
        case 'l':
            whole.write_local("\nlocal\x1b[m\n");
            return pieces.write_local("\nlocal\x1b[m\n");
        case 'c':
            whole.clear_all();
            return pieces.clear_all();
        case 'k':
            whole.clear_all_but_line();
            return pieces.clear_all_but_line();
        case 'm':
            write_both(whole, pieces, languages[first % languages.size()]);
            return;
        case 'e':
            whole.end_of_program();
            return pieces.end_of_program();
        case 'i':
            whole.reset();
            return pieces.reset();
        case 'q':
            return ask(whole, position(whole, first, second));
        default:
            return;
    }
}

/// Writes in pieces of a few bytes.
void write_pieces(Terminal& terminal, std::string_view bytes) {
    for (std::size_t length = 1; !bytes.empty(); length = length % 7 + 1) {
        terminal.write(bytes.substr(0, length));
        bytes.remove_prefix(std::min(length, bytes.size()));
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CheckedClient whole_client;
    CheckedClient pieces_client;
    const Options options{{20, 6}, scrollback_rows};
    Terminal whole(options, whole_client);
    Terminal pieces(options, pieces_client);
    StampCheck stamps;
    stamps.look(whole);
    for (std::string_view rest = as_text(data, size); !rest.empty();) {
        const std::string_view written = rest.substr(0, rest.find(step_mark));
        rest.remove_prefix(written.size());
        check_cost(whole, written);
        write_pieces(pieces, written);
        stamps.look(whole);
        if (rest.size() > step_bytes) {
            take_step(whole, pieces, rest[1], static_cast<std::uint8_t>(rest[2]),
                      static_cast<std::uint8_t>(rest[3]));
            check_picture(whole);
            if (rest[1] == 'r') {
                stamps.forget();
            }
            stamps.look(whole);
        }
        rest.remove_prefix(std::min(rest.size(), step_bytes + 1));
    }
    check_picture(whole);
    require(picture(whole) == picture(pieces), "the picture depends on how the bytes were cut");
    require(whole_client.replies == pieces_client.replies,
            "what is replied depends on how the bytes were cut");
    require(whole_client.told == pieces_client.told, "what is told depends on how the bytes were cut");
    return 0;
}
