// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/cell.h"
#include "terminal/terminal.h"

#include <optional>
#include <string>
#include <string_view>

namespace terminal {

// Text of a terminal by logical lines: rows that wrapped are one line, as its user sees it.

/// The text of a range as UTF-8: wrapped rows joined, a line feed between lines, no blanks at the ends of
/// lines.
std::string text_between(const Terminal& terminal, Range range);

/// The rows of the logical line that `row` belongs to, from the first row's start to the last one's end
/// at the screen's right edge.
Range logical_line(const Terminal& terminal, RowId row);

/// The word around a position, across a wrap: letters, digits, and what paths and addresses are made of.
/// Where no word is, the run of like characters (blanks, or one punctuation character).
Range word_at(const Terminal& terminal, Position position);

/// From the start of the cursor's logical line (just behind the last line feed) to the insertion point.
/// Blanks before the insertion point belong to it.
Range line_to_cursor(const Terminal& terminal);
/// Text of that range, with its blanks.
std::string line_to_cursor_text(const Terminal& terminal);
/// Text from the insertion point to the end of its logical line, without the blanks at the end and without a
/// prompt that the shell shows at the right edge.
std::string line_behind_cursor_text(const Terminal& terminal);

enum class SearchDirection : std::uint8_t { backward, forward };
enum class LetterCase : std::uint8_t { ignored, significant };

/// The next occurrence of `needle` (UTF-8) strictly before or behind `from` within logical lines of screen
/// and scrollback; does not go round the end.
std::optional<Range> find(const Terminal& terminal, std::string_view needle, Position from,
                          SearchDirection direction, LetterCase letter_case);

}  // namespace terminal
