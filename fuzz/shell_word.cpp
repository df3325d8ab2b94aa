// SPDX-License-Identifier: MIT
#include "fuzz/shell_word.h"

#include <algorithm>
#include <cctype>
#include <cstdint>

namespace {

/// The UTF-8 form of a code point.
std::string encoded(std::uint32_t code) {
    const auto further = static_cast<unsigned>(code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3);
    const std::uint32_t marks[] = {0, 0xC0, 0xE0, 0xF0};
    std::string text(1, static_cast<char>(marks[further] | code >> (6 * further)));
    for (unsigned left = further; left-- > 0;) {
        text += static_cast<char>(0x80U | (code >> (6 * left) & 0x3FU));
    }
    return text;
}

/// Takes what stands up to the next `end`, and it too. Nothing when there is none.
std::optional<std::string_view> take_up_to(char end, std::string_view& rest) {
    const std::size_t at = rest.find(end);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view taken = rest.substr(0, at);
    rest.remove_prefix(at + 1);
    return taken;
}

/// The text of $'...': three octal digits behind each backslash.
std::optional<std::string> read_octal(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        if (text.front() != '\\') {
            out += text.front();
            text.remove_prefix(1);
            continue;
        }
        const std::string_view digits = text.substr(1, 3);
        if (digits.size() != 3 || digits.find_first_not_of("01234567") != std::string_view::npos ||
            digits.front() > '3') {
            return std::nullopt;
        }
        out += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
        text.remove_prefix(4);
    }
    return out;
}

/// Takes the quoted part of a word that `rest` begins with; its opening quote is gone.
std::optional<std::string> take_quoted(std::string_view opening, std::string_view& rest) {
    const auto text = take_up_to(opening.back(), rest);
    if (!text) {
        return std::nullopt;
    }
    if (opening == "\"" && text->find_first_of("$`\\!") != std::string_view::npos) {
        return std::nullopt;
    }
    return opening == "$'" ? read_octal(*text) : std::string(*text);
}

/// Takes a character outside of quotes, with the backslash before it.
std::optional<char> take_plain(std::string_view& rest, bool first) {
    const bool escaped = rest.starts_with('\\') && rest.size() > 1;
    const char c = rest[escaped ? 1 : 0];
    const bool ordinary =
        std::isalnum(static_cast<unsigned char>(c)) != 0 || static_cast<unsigned char>(c) >= 0x80 ||
        std::string_view("_./+,:@%-").find(c) != std::string_view::npos || (c == '=' && !first);
    if (escaped ? c != ' ' && c != '\'' : !ordinary) {  // no more is escaped than what all shells agree on
        return std::nullopt;
    }
    rest.remove_prefix(escaped ? 2 : 1);
    return c;
}

}  // namespace

std::optional<std::string> read_word(std::string_view text) {
    if (text.empty()) {
        return std::nullopt;
    }
    std::string word;
    for (std::string_view rest = text; !rest.empty();) {
        constexpr std::string_view openings[] = {"'", "\"", "$'"};
        const auto* const opening = std::ranges::find_if(
            openings, [rest](std::string_view quote) { return rest.starts_with(quote); });
        if (opening != std::end(openings)) {
            rest.remove_prefix(opening->size());
            const auto part = take_quoted(*opening, rest);
            if (!part) {
                return std::nullopt;
            }
            word += *part;
        } else if (const auto plain = take_plain(rest, rest.size() == text.size())) {
            word += *plain;
        } else {
            return std::nullopt;
        }
    }
    return word;
}

bool is_typed_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool is_typed_utf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const auto further = static_cast<std::size_t>(lead < 0xC0   ? 0
                                                      : lead < 0xE0 ? 1
                                                      : lead < 0xF0 ? 2
                                                                    : 3);
        if (lead < 0x80) {
            ++at;
            continue;
        }
        const std::string_view sequence = text.substr(at, further + 1);
        std::uint32_t code = further == 0 ? 0 : lead & (0x3FU >> further);
        for (const char c : sequence.substr(1)) {
            code = code << 6U | (static_cast<unsigned char>(c) & 0x3FU);
        }
        const bool special = code < 0xA0 || (code >= 0xD800 && code < 0xF900) ||
                             (code >= 0xFDD0 && code < 0xFDF0) || (code & 0xFFFEU) == 0xFFFE ||
                             code >= 0xF0000;
        if (further == 0 || special || encoded(code) != sequence) {
            return false;
        }
        at += sequence.size();
    }
    return true;
}

Quotes quotes_behind(std::string_view line) {
    Quotes quotes;
    char before = 0;  // what acts on the next character
    for (const char c : line) {
        const bool live = before != '\\' && quotes.open != '\'';
        if (before != '\\' && quotes.open == c) {
            quotes.open = 0;
        } else if (live && quotes.open == 0 && (c == '\'' || c == '"')) {
            quotes.open = c;
        }
        before = live && (c == '\\' || (c == '$' && before != '$')) ? c : '\0';
    }
    quotes.escaped = before != 0;
    return quotes;
}
