// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

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
    bool operator==(const Style&) const = default;
};

}  // namespace terminal
