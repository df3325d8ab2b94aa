// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace terminal {

/// A colour as it was asked for: the default one, an index into the palette of 256, or 24 bits.
struct Colour {
    enum class Kind : std::uint8_t { standard, indexed, direct };
    Kind kind = Kind::standard;
    std::uint8_t red = 0;  ///< the index, when indexed
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    static constexpr Colour indexed(std::uint8_t index) { return {Kind::indexed, index, 0, 0}; }
    static constexpr Colour direct(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
        return {Kind::direct, r, g, b};
    }
    [[nodiscard]] std::uint8_t index() const { return red; }
    bool operator==(const Colour&) const = default;
};

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Rgb&) const = default;
};

enum class Underline : std::uint8_t { none, single, twofold, curly, dotted, dashed };

/// What SGR (ECMA-48 8.3.117, and xterm's additions) can say of a character.
struct Style {
    Colour foreground{};
    Colour background{};
    Colour underline_colour{};  ///< standard: as the foreground
    Underline underline = Underline::none;
    bool bold : 1 = false;
    bool faint : 1 = false;
    bool italic : 1 = false;
    bool blink : 1 = false;
    bool reverse : 1 = false;
    bool invisible : 1 = false;
    bool struck : 1 = false;
    bool overlined : 1 = false;
    bool operator==(const Style& other) const { return key() == other.key(); }

    /// All of it as two numbers, read in the portions in which it is written: a processor is slow to read at
    /// once what has just been written in parts.
    struct Key {
        std::uint64_t colours;
        std::uint64_t rest;
        bool operator==(const Key&) const = default;
    };
    [[nodiscard]] Key key() const {
        const auto bits = [](Colour colour) { return std::uint64_t{std::bit_cast<std::uint32_t>(colour)}; };
        std::uint8_t flags = 0;
        std::memcpy(&flags, reinterpret_cast<const char*>(this) + sizeof(Style) - 1, 1);
        return {bits(foreground) << 32 | bits(background),
                bits(underline_colour) << 32 | static_cast<std::uint64_t>(underline) << 8 | flags};
    }
};
static_assert(sizeof(Style) == 3 * sizeof(Colour) + 2, "the flags are the last byte");

class Parameters;

/// Select Graphic Rendition (ECMA-48 8.3.117), with xterm's 256 and direct colours (both as 38;5;n and as
/// 38:5:n of ISO 8613-6), underline styles (4:n) and underline colours (58, 59). Begins at parameter `first`.
void apply_sgr(const Parameters& parameters, Style& style, std::size_t first = 0);

/// The parameters that make this style from any other, "0;1;31" say.
std::string sgr_text(const Style& style);

}  // namespace terminal
