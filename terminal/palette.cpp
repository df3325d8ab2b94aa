// SPDX-License-Identifier: MIT
#include "terminal/palette.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace terminal {

namespace {

constexpr std::array<Rgb, 16> first_colours = {{
    {0x00, 0x00, 0x00},
    {0xCD, 0x00, 0x00},
    {0x00, 0xCD, 0x00},
    {0xCD, 0xCD, 0x00},
    {0x1E, 0x50, 0xC8},
    {0xCD, 0x00, 0xCD},
    {0x00, 0xCD, 0xCD},
    {0xE5, 0xE5, 0xE5},
    {0x7F, 0x7F, 0x7F},
    {0xFF, 0x00, 0x00},
    {0x00, 0xFF, 0x00},
    {0xFF, 0xFF, 0x00},
    {0x5C, 0x5C, 0xFF},
    {0xFF, 0x00, 0xFF},
    {0x00, 0xFF, 0xFF},
    {0xFF, 0xFF, 0xFF},
}};

/// xterm's 256 colours: 16, a cube of 6 by 6 by 6, and 24 greys.
constexpr std::array<Rgb, Palette::size> make_colours() {
    std::array<Rgb, Palette::size> colours{};
    std::copy(first_colours.begin(), first_colours.end(), colours.begin());
    const auto level = [](std::size_t step) {
        return static_cast<std::uint8_t>(step == 0 ? 0 : 55 + 40 * step);
    };
    for (std::size_t i = 0; i < 216; ++i) {
        colours[16 + i] = {level(i / 36), level(i / 6 % 6), level(i % 6)};
    }
    for (std::size_t i = 0; i < 24; ++i) {
        const auto grey = static_cast<std::uint8_t>(8 + 10 * i);
        colours[232 + i] = {grey, grey, grey};
    }
    return colours;
}

/// How digits fewer or more than two make 8 bits: as a fraction of the greatest number of that many digits,
/// or as the first of a longer number.
enum class Scale : std::uint8_t { fraction, leading_digits };

std::optional<std::uint8_t> parse_component(std::string_view digits, Scale scale) {
    unsigned value = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, 16);
    if (digits.empty() || digits.size() > 4 || result.ec != std::errc{} || result.ptr != end) {
        return std::nullopt;
    }
    if (scale == Scale::leading_digits) {
        constexpr unsigned whole = 4;
        return static_cast<std::uint8_t>(value << 4 * (whole - digits.size()) >> 8);
    }
    const unsigned greatest = (1U << 4 * digits.size()) - 1;
    return static_cast<std::uint8_t>((value * 255 + greatest / 2) / greatest);
}

}  // namespace

std::optional<Rgb> parse_colour(std::string_view text) {
    std::array<std::string_view, 3> parts;
    const Scale scale = text.starts_with('#') ? Scale::leading_digits : Scale::fraction;
    if (text.starts_with("rgb:")) {
        text.remove_prefix(4);
        for (std::size_t i = 0; i < 3; ++i) {
            const std::size_t end = i < 2 ? text.find('/') : text.size();
            if (end == std::string_view::npos) {
                return std::nullopt;
            }
            parts[i] = text.substr(0, end);
            text.remove_prefix(std::min(end + 1, text.size()));
        }
    } else if (text.starts_with('#') && text.size() % 3 == 1) {
        const std::size_t length = text.size() / 3;
        for (std::size_t i = 0; i < 3; ++i) {
            parts[i] = text.substr(1 + i * length, length);
        }
    }
    const auto red = parse_component(parts[0], scale);
    const auto green = parse_component(parts[1], scale);
    const auto blue = parse_component(parts[2], scale);
    if (!red || !green || !blue) {
        return std::nullopt;
    }
    return Rgb{*red, *green, *blue};
}

std::string colour_text(Rgb colour) {
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "rgb:%04x/%04x/%04x", colour.red * 257U,
                                     colour.green * 257U, colour.blue * 257U);
    return {text.data(), static_cast<std::size_t>(length)};
}

Palette::Palette() : standard_colours_(make_colours()) {
    set_standard({0, 0, 0}, {255, 255, 255}, {0, 0, 0}, {});
}

void Palette::reset_special() {
    constexpr auto first = static_cast<std::ptrdiff_t>(ColourRole::bold);
    std::copy(standard_roles_.begin() + first, standard_roles_.end(), roles_.begin() + first);
}

void Palette::reset_all() {
    colours_ = standard_colours_;
    roles_ = standard_roles_;
}

void Palette::set_standard(Rgb foreground, Rgb background, Rgb cursor, std::span<const Rgb> colours) {
    standard_roles_.fill(foreground);
    using Role = ColourRole;
    for (const Role role : {Role::background, Role::pointer_background, Role::tektronix_background,
                            Role::highlight_foreground}) {
        standard_roles_[static_cast<std::size_t>(role)] = background;
    }
    standard_roles_[static_cast<std::size_t>(Role::cursor)] = cursor;
    std::copy_n(colours.begin(), std::min(colours.size(), first_colours.size()), standard_colours_.begin());
    reset_all();
}

}  // namespace terminal
