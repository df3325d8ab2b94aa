// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace terminal {

inline constexpr char32_t replacement_character = 0xFFFD;

/// Decodes UTF-8 byte by byte, as it comes in pieces from a pty. Ill-formed input is told by maximal subparts
/// (Unicode 3.9, table 3-8), so that one U+FFFD can stand for each.
class Utf8Decoder {
  public:
    enum class Step : std::uint8_t {
        incomplete,     ///< more bytes needed
        character,      ///< `character()` is complete
        invalid,        ///< this byte is wrong, and consumed
        invalid_before  ///< what came before was cut short; this byte is to be pushed again
    };
    Step push(std::uint8_t byte);
    [[nodiscard]] char32_t character() const { return character_; }
    [[nodiscard]] bool idle() const { return remaining_ == 0; }
    void reset() { remaining_ = 0; }

  private:
    Step begin(std::uint8_t byte);

    char32_t character_ = 0;
    std::uint8_t remaining_ = 0;
    std::uint8_t low_ = 0x80;  // the next byte must lie between these
    std::uint8_t high_ = 0xBF;
};

/// Decodes well-formed sequences of two to four bytes from the front of `bytes` into `out`, up to the first
/// byte that is ASCII, a C1 control, ill-formed or cut off. Removes what it decoded; returns the number of
/// characters.
std::size_t decode_run(std::string_view& bytes, std::span<char32_t> out);

/// Writes a value below 2^21 in UTF-8's pattern, at most four bytes; returns behind them. Values above
/// U+10FFFF are for our own use in the scrollback.
inline char* write_utf8(char32_t value, char* to) {
    const auto put = [&to](char32_t byte) { *to++ = static_cast<char>(byte); };
    if (value < 0x80) {
        put(value);
    } else if (value < 0x800) {
        put(0xC0 | value >> 6);
        put(0x80 | (value & 0x3F));
    } else if (value < 0x10000) {
        put(0xE0 | value >> 12);
        put(0x80 | (value >> 6 & 0x3F));
        put(0x80 | (value & 0x3F));
    } else {
        put(0xF0 | value >> 18);
        put(0x80 | (value >> 12 & 0x3F));
        put(0x80 | (value >> 6 & 0x3F));
        put(0x80 | (value & 0x3F));
    }
    return to;
}
inline constexpr std::size_t max_utf8_bytes = 4;

inline void append_utf8(char32_t value, std::string& out) {
    std::array<char, max_utf8_bytes> bytes;
    out.append(bytes.data(), write_utf8(value, bytes.data()));
}

/// The first value of text made by `append_utf8`, which is therefore well-formed; moves `text` behind it.
inline char32_t take_utf8(const char*& text) {
    const auto next = [&text] { return static_cast<char32_t>(static_cast<std::uint8_t>(*text++)); };
    const char32_t lead = next();
    if (lead < 0x80) {
        return lead;
    }
    if (lead < 0xE0) {
        return (lead & 0x1F) << 6 | (next() & 0x3F);
    }
    if (lead < 0xF0) {
        const char32_t high = next() & 0x3F;
        return (lead & 0x0F) << 12 | high << 6 | (next() & 0x3F);
    }
    const char32_t high = next() & 0x3F;
    const char32_t middle = next() & 0x3F;
    return (lead & 0x07) << 18 | high << 12 | middle << 6 | (next() & 0x3F);
}

}  // namespace terminal
