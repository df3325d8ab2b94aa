// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/style.h"

#include <array>
#include <optional>
#include <string_view>

/// The pane's colours: what a program gets that asks for none, and the 16 it can name. On a dark background
/// all but the two blacks are legible (contrast of 4.5 to 1 and more), and bright white is on each of them.
namespace terminal_colours {

using terminal::Rgb;

inline constexpr Rgb foreground{0xd8, 0xde, 0xe9};
inline constexpr Rgb background{0x1d, 0x21, 0x29};
inline constexpr Rgb cursor{0xe6, 0xc3, 0x84};
inline constexpr std::array<Rgb, 16> palette{{
    {0x2e, 0x34, 0x40},  // black
    {0xe4, 0x60, 0x6a},  // red
    {0xa3, 0xc9, 0x7a},  // green
    {0xe5, 0xc0, 0x7b},  // yellow
    {0x4f, 0x8f, 0xe6},  // blue
    {0xb6, 0x79, 0xd8},  // magenta
    {0x62, 0xc4, 0xc9},  // cyan
    {0xc8, 0xcf, 0xdb},  // white
    {0x7a, 0x86, 0x9b},  // bright black
    {0xff, 0x8f, 0x95},  // bright red
    {0xbd, 0xe2, 0x94},  // bright green
    {0xff, 0xd8, 0x93},  // bright yellow
    {0x8a, 0xbc, 0xff},  // bright blue
    {0xdf, 0xb1, 0xf7},  // bright magenta
    {0x86, 0xe0, 0xe4},  // bright cyan
    {0xf4, 0xf6, 0xfa},  // bright white
}};

inline constexpr Rgb selection_background{0x3f, 0x5a, 0x85};
inline constexpr Rgb selection_foreground{0xff, 0xff, 0xff};
inline constexpr Rgb match_background{0xe6, 0xb4, 0x50};
inline constexpr Rgb match_foreground{0x1d, 0x21, 0x29};

}  // namespace terminal_colours

/// A colour as Xlib reads it (XParseColor): by its name on the X server, or in a device-independent form, as
/// "rgbi:1/0.5/0" or "CIELab:50/20/20". May ask the server. Nothing for what is none, or without X.
std::optional<terminal::Rgb> x_colour(std::string_view name);
