// SPDX-License-Identifier: MIT
#include "terminal/utf8.h"

#include <array>

namespace terminal {

namespace {

/// What a lead byte says of its sequence: the number of bytes that follow, and between which values the first
/// of them must lie (Unicode, table 3-7: no overlong forms, no surrogates, nothing beyond U+10FFFF).
struct Lead {
    std::uint8_t following;
    std::uint8_t low;
    std::uint8_t high;
    std::uint8_t bits;
    std::uint8_t excess_bits;  // what a character of four bytes has more
};

constexpr Lead lead_of(std::uint8_t byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, 0x80, 0xBF, static_cast<std::uint8_t>(byte & 0x1F), 12};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        const std::uint8_t low = byte == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t high = byte == 0xED ? 0x9F : 0xBF;
        return {2, low, high, static_cast<std::uint8_t>(byte & 0x0F), 6};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const std::uint8_t low = byte == 0xF0 ? 0x90 : 0x80;
        const std::uint8_t high = byte == 0xF4 ? 0x8F : 0xBF;
        return {3, low, high, static_cast<std::uint8_t>(byte & 0x07), 0};
    }
    if (byte >= 0x20 && byte < 0x7F) {  // counts as a sequence only between others
        return {0, 0x80, 0xFF, byte, 18};
    }
    return {0, 0xFF, 0x00, 0, 18};  // nothing can follow
}

constexpr auto leads = [] {
    std::array<Lead, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        table[byte] = lead_of(static_cast<std::uint8_t>(byte));
    }
    return table;
}();

constexpr bool is_c1_control(char32_t character) { return character >= 0x80 && character < 0xA0; }

}  // namespace

Utf8Decoder::Step Utf8Decoder::begin(std::uint8_t byte) {
    if (byte < 0x80) {
        character_ = byte;
        return Step::character;
    }
    const Lead lead = leads[byte];
    if (lead.following == 0) {
        return Step::invalid;
    }
    character_ = lead.bits;
    remaining_ = lead.following;
    low_ = lead.low;
    high_ = lead.high;
    return Step::incomplete;
}

Utf8Decoder::Step Utf8Decoder::push(std::uint8_t byte) {
    if (remaining_ == 0) {
        return begin(byte);
    }
    if (byte < low_ || byte > high_) {
        remaining_ = 0;
        return Step::invalid_before;
    }
    character_ = character_ << 6 | (byte & 0x3FU);
    low_ = 0x80;
    high_ = 0xBF;
    return --remaining_ == 0 ? Step::character : Step::incomplete;
}

std::size_t decode_run(std::string_view& bytes, std::span<char32_t> out) {
    const auto value = [](char byte) { return static_cast<std::uint8_t>(byte); };
    const auto follows = [](std::uint8_t byte) { return (byte & 0xC0U) == 0x80; };
    std::size_t count = 0;
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (count < out.size() && end - at >= std::ptrdiff_t{max_utf8_bytes}) {
        const std::uint8_t first = value(at[0]);
        const std::uint8_t second = value(at[1]);
        // All four bytes are taken for what they would be, and what is too much is shifted out.
        const Lead& lead = leads[first];
        const std::uint8_t third = value(at[2]);
        const std::uint8_t fourth = value(at[3]);
        const char32_t four = static_cast<char32_t>(lead.bits) << 18 | (second & 0x3FU) << 12 |
                              (third & 0x3FU) << 6 | (fourth & 0x3FU);
        const char32_t character = four >> lead.excess_bits;
        const int well_formed = int{second >= lead.low} & int{second <= lead.high} &
                                (int{lead.following < 2} | int{follows(third)}) &
                                (int{lead.following < 3} | int{follows(fourth)});
        if (well_formed == 0 || is_c1_control(character)) {
            break;
        }
        out[count++] = character;
        at += lead.following + 1;
    }
    bytes.remove_prefix(static_cast<std::size_t>(at - bytes.data()));
    return count;
}

std::string_view cut_utf8(std::string_view text, std::size_t size) {
    if (text.size() <= size) {
        return text;
    }
    while (size > 0 && (static_cast<std::uint8_t>(text[size]) & 0xC0) == 0x80) {
        --size;
    }
    return text.substr(0, size);
}

std::string plain_utf8(std::string_view text) {
    std::string plain;
    const auto append = [&plain](char32_t character) {
        if (character >= 0xA0 || (character >= 0x20 && character < 0x7F)) {
            append_utf8(character, plain);
        }
    };
    Utf8Decoder decoder;
    for (const char character : text) {
        const auto byte = static_cast<std::uint8_t>(character);
        auto step = decoder.push(byte);
        if (step == Utf8Decoder::Step::invalid_before) {
            append(replacement_character);
            step = decoder.push(byte);
        }
        if (step != Utf8Decoder::Step::incomplete) {
            append(step == Utf8Decoder::Step::character ? decoder.character() : replacement_character);
        }
    }
    if (!decoder.idle()) {
        append(replacement_character);
    }
    return plain;
}

}  // namespace terminal
