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

/// Decodes well-formed sequences of two to four bytes, and single ASCII characters between them, from the
/// front of `bytes` into `out`: up to the first byte that is of a longer run of ASCII, a control, ill-formed
/// or among the last three. Removes what it decoded; returns the number of characters.
std::size_t decode_run(std::string_view& bytes, std::span<char32_t> out);

inline constexpr std::size_t max_utf8_bytes = 4;

/// Writes a value below 2^21 in UTF-8's pattern, at most four bytes, into a place that has room for four;
/// returns behind them. Values above U+10FFFF are for our own use in the scrollback. Up to three bytes it
/// chooses, but does not branch: in mixed text a processor can't foretell which it is.
inline char* write_utf8(char32_t value, char* to) {
    const auto following = [value](int shift) { return 0x80 | (value >> shift & 0x3F); };
    if (value < 0x10000) {
        constexpr std::array<char32_t, 3> marks{0x00, 0xC0, 0xE0};
        const std::size_t more = (value >= 0x80 ? 1U : 0U) + (value >= 0x800 ? 1U : 0U);
        to[0] = static_cast<char>(marks[more] | value >> 6 * more);
        to[1] = static_cast<char>(following(more == 2 ? 6 : 0));
        to[2] = static_cast<char>(following(0));
        return to + 1 + more;
    }
    to[0] = static_cast<char>(0xF0 | value >> 18);
    to[1] = static_cast<char>(following(12));
    to[2] = static_cast<char>(following(6));
    to[3] = static_cast<char>(following(0));
    return to + 4;
}

inline void append_utf8(char32_t value, std::string& out) {
    std::array<char, max_utf8_bytes> bytes;
    out.append(bytes.data(), write_utf8(value, bytes.data()));
}

/// Cuts well-formed UTF-8 to at most `size` bytes, between characters.
std::string_view cut_utf8(std::string_view text, std::size_t size);
/// Text without controls: C0, DEL and C1 go, ill-formed parts become U+FFFD.
std::string plain_utf8(std::string_view text);

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
