// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/style.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace terminal {

/// A colour as programs give it (XParseColor): "rgb:h/h/h" to "rgb:hhhh/hhhh/hhhh", or "#" with three, six,
/// nine or twelve digits, of which the first two count ("#f00" is 240 of red). What the X server or Xlib
/// knows besides is not known here.
std::optional<Rgb> parse_colour(std::string_view text);
/// The colour as a reply gives it: "rgb:hhhh/hhhh/hhhh".
std::string colour_text(Rgb colour);

/// What OSC 10 to 19 set, in their order, and then OSC 5. Only the first three are used in painting: the
/// pointer and the selection have the desktop's colours, there is no Tektronix window, and as on xterm unless
/// it is told otherwise attributes have no colours of their own.
enum class ColourRole : std::uint8_t {
    foreground,
    background,
    cursor,
    pointer_foreground,
    pointer_background,
    tektronix_foreground,
    tektronix_background,
    highlight_background,
    tektronix_cursor,
    highlight_foreground,
    bold,
    underline,
    blink,
    reverse,
    italic,
};

/// The colours in force, and those that a reset goes back to.
class Palette {
  public:
    static constexpr int size = 256;
    static constexpr std::size_t role_count = 15;

    Palette();

    [[nodiscard]] Rgb colour(int index) const { return colours_[static_cast<std::size_t>(index & 0xFF)]; }
    [[nodiscard]] Rgb colour(ColourRole role) const { return roles_[static_cast<std::size_t>(role)]; }
    void set(int index, Rgb colour) { colours_[static_cast<std::size_t>(index & 0xFF)] = colour; }
    void set(ColourRole role, Rgb colour) { roles_[static_cast<std::size_t>(role)] = colour; }
    void reset(int index) { set(index, standard_colours_[static_cast<std::size_t>(index & 0xFF)]); }
    void reset(ColourRole role) { set(role, standard_roles_[static_cast<std::size_t>(role)]); }
    /// All 256, not those by role.
    void reset_indexed() { colours_ = standard_colours_; }
    /// The roles of OSC 5.
    void reset_special();
    void reset_all();
    void set_standard(Rgb foreground, Rgb background, Rgb cursor, std::span<const Rgb> colours);

  private:
    std::array<Rgb, size> standard_colours_;
    std::array<Rgb, role_count> standard_roles_;
    std::array<Rgb, size> colours_;
    std::array<Rgb, role_count> roles_;
};

}  // namespace terminal
