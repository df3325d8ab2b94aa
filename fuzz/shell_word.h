// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

// How shells read quotes (POSIX XCU 2.2, and $'...' as bash has it): a model to check the program's words
// against.

/// Reads a text as one word of a command line. Nothing when it is not one, or when some shell might act on
/// anything in it.
std::optional<std::string> read_word(std::string_view text);

/// Whether line editors put every byte of a text into the line: ASCII only, or UTF-8 of characters without a
/// meaning of their own. The text decoded and encoded again must be itself.
bool is_typed_ascii(std::string_view text);
bool is_typed_utf8(std::string_view text);

/// How the beginning of a command line ends.
struct Quotes {
    char open = 0;         ///< the quote that is open, 0 for none
    bool escaped = false;  ///< a backslash or "$" takes the next character
};
Quotes quotes_behind(std::string_view line);
