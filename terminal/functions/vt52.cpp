// SPDX-License-Identifier: MIT
#include "terminal/terminal.h"

#include <algorithm>
#include <cassert>

// The escape sequences of a VT52 (VT100 manual, "VT52 mode"), while ANSI mode is off.

namespace terminal {

namespace {

constexpr char argument_offset = 0x20;

}  // namespace

void Terminal::vt52_sequence(char final, std::array<char, max_intermediates> arguments) {
    switch (final) {
        case 'Y': {
            const int row = arguments[0] - argument_offset;
            const int column = arguments[1] - argument_offset;
            // A row out of range leaves the row, a column out of range means the last one.
            move_to(row < size().rows ? row : cursor_.row, column);
            break;
        }
        case 'F':
            sets_.designated[0] = CharacterSet::line_drawing;
            break;
        case 'G':
            sets_.designated[0] = CharacterSet::ascii;
            break;
        case 'J':
            erase_on_screen(Which::cursor_to_end, Erasure::plain);
            break;
        case 'K':
            erase_in_row(Which::cursor_to_end, Erasure::plain);
            break;
        case 'Z':
            replies_ += "\x1b/Z";
            break;
        case '=':
        case '>':
            modes_.application_keypad = final == '=';
            break;
        case '<':
            set_ansi(true);
            break;
        default:
            vt52_move(final);
            break;
    }
    assert(is_consistent());
}

void Terminal::vt52_move(char final) {
    switch (final) {
        case 'A':
            return move_vertically(-1);
        case 'B':
            return move_vertically(1);
        case 'C':
            return move_horizontally(1);
        case 'D':
            return move_horizontally(-1);
        case 'H':
            return move_to(0, 0);
        case 'I':
            return reverse_line_feed();
        default:
            return;
    }
}

}  // namespace terminal
