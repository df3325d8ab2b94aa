// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

/// A selection of the X server that text is exchanged by (ICCCM, section 2.6.1).
enum class SelectionName : std::uint8_t { primary, clipboard };

/// What has become of asking for a selection.
struct SelectionAnswer {
    enum class Kind : std::uint8_t {
        text,
        nobody,    ///< nobody holds it, or its holder gives no text
        silent,    ///< its holder did not answer in time
        too_long,  ///< longer than asked for
    };
    Kind kind = Kind::nobody;
    std::string text;  ///< UTF-8

    bool operator==(const SelectionAnswer&) const = default;
};

/// Whether any program, or this one, holds a selection.
bool selection_inquire(SelectionName name = SelectionName::primary);
/// The contents of a selection as text of at most so many bytes. Its holder is another program, which may not
/// answer: that takes a second at most in all, and a longer text is not fetched.
SelectionAnswer selection_ask(std::size_t longest, SelectionName name = SelectionName::primary);
/// Puts text into the clipboard.
void copy_to_clipboard(const std::string& text);
