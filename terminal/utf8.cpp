// SPDX-License-Identifier: MIT
#include "terminal/utf8.h"

namespace terminal {

namespace {

/// What a lead byte says of its sequence: the number of bytes that follow, and between which values the first
/// of them must lie (Unicode, table 3-7: no overlong forms, no surrogates, nothing beyond U+10FFFF).
struct Lead {
    std::uint8_t following = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
    std::uint8_t bits = 0;
};

constexpr Lead lead_of(std::uint8_t byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, 0x80, 0xBF, static_cast<std::uint8_t>(byte & 0x1F)};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        const std::uint8_t low = byte == 0xE0 ? 0xA0 : 0x80;
        const std::uint8_t high = byte == 0xED ? 0x9F : 0xBF;
        return {2, low, high, static_cast<std::uint8_t>(byte & 0x0F)};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const std::uint8_t low = byte == 0xF0 ? 0x90 : 0x80;
        const std::uint8_t high = byte == 0xF4 ? 0x8F : 0xBF;
        return {3, low, high, static_cast<std::uint8_t>(byte & 0x07)};
    }
    return {};
}

}  // namespace

Utf8Decoder::Step Utf8Decoder::begin(std::uint8_t byte) {
    if (byte < 0x80) {
        character_ = byte;
        return Step::character;
    }
    const Lead lead = lead_of(byte);
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
    std::size_t count = 0;
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (count < out.size() && at < end) {
        const Lead lead = lead_of(static_cast<std::uint8_t>(*at));
        if (lead.following == 0 || end - at <= lead.following) {
            break;
        }
        const auto first = static_cast<std::uint8_t>(at[1]);
        if (first < lead.low || first > lead.high) {
            break;
        }
        char32_t character = static_cast<char32_t>(lead.bits) << 6 | (first & 0x3FU);
        bool well_formed = true;
        for (int i = 2; i <= lead.following; ++i) {
            const auto byte = static_cast<std::uint8_t>(at[i]);
            well_formed = well_formed && (byte & 0xC0U) == 0x80;
            character = character << 6 | (byte & 0x3FU);
        }
        if (!well_formed || character < 0xA0) {
            break;
        }
        out[count++] = character;
        at += lead.following + 1;
    }
    bytes.remove_prefix(static_cast<std::size_t>(at - bytes.data()));
    return count;
}

}  // namespace terminal
