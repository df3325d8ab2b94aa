// SPDX-License-Identifier: MIT
#include "shell/plain_text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

/// A row of table 3-7: what lead bytes may be followed by. Further bytes are 80 to BF.
struct Sequence {
    unsigned char first_lead;
    unsigned char last_lead;
    unsigned char first_second;  ///< the lowest second byte
    unsigned char last_second;
    std::size_t length;
};

constexpr std::array sequences{
    Sequence{0xC2, 0xDF, 0x80, 0xBF, 2}, Sequence{0xE0, 0xE0, 0xA0, 0xBF, 3},
    Sequence{0xE1, 0xEC, 0x80, 0xBF, 3}, Sequence{0xED, 0xED, 0x80, 0x9F, 3},
    Sequence{0xEE, 0xEF, 0x80, 0xBF, 3}, Sequence{0xF0, 0xF0, 0x90, 0xBF, 4},
    Sequence{0xF1, 0xF3, 0x80, 0xBF, 4}, Sequence{0xF4, 0xF4, 0x80, 0x8F, 4},
};

bool is_between(unsigned char byte, unsigned char first, unsigned char last) {
    return byte >= first && byte <= last;
}

/// The length of the character beyond ASCII that a text begins with; 0 where it begins with none.
std::size_t sequence_length(std::string_view text) {
    const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const auto* const row = std::ranges::find_if(
        sequences, [&](const Sequence& s) { return is_between(byte(0), s.first_lead, s.last_lead); });
    if (row == sequences.end() || row->length > text.size() ||
        !is_between(byte(1), row->first_second, row->last_second)) {
        return 0;
    }
    const std::string_view further = text.substr(2, row->length - 2);
    const bool complete = std::ranges::all_of(
        further, [](char c) { return is_between(static_cast<unsigned char>(c), 0x80, 0xBF); });
    return complete ? row->length : 0;
}

/// The code point of a whole sequence.
char32_t code_point(std::string_view sequence) {
    constexpr char32_t payload = 0x3F;
    char32_t code = static_cast<unsigned char>(sequence[0]) & (0xFFU >> (sequence.size() + 1));
    for (const char c : sequence.substr(1)) {
        code = code << 6U | (static_cast<unsigned char>(c) & payload);
    }
    return code;
}

bool is_plain(char32_t code) {
    const bool control = code < 0xA0;
    const bool noncharacter = (code >= 0xFDD0 && code <= 0xFDEF) || (code & 0xFFFEU) == 0xFFFE;
    const bool private_use = (code >= 0xE000 && code <= 0xF8FF) || code >= 0xF0000;
    return !control && !noncharacter && !private_use;
}

bool is_ascii_byte(char c) { return static_cast<unsigned char>(c) < 0x80; }

}  // namespace

bool is_plain_utf8(std::string_view text) {
    while (!text.empty()) {
        if (is_ascii_byte(text.front())) {
            text.remove_prefix(1);
            continue;
        }
        const std::size_t length = sequence_length(text);
        if (length == 0 || !is_plain(code_point(text.substr(0, length)))) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

bool is_ascii(std::string_view text) { return std::ranges::all_of(text, is_ascii_byte); }
