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
/// nine or twelve digits. Colour names are not known here.
std::optional<Rgb> parse_colour(std::string_view text);
/// The colour as a reply gives it: "rgb:hhhh/hhhh/hhhh".
std::string colour_text(Rgb colour);

enum class ColourRole : std::uint8_t { foreground, background, cursor };

/// The colours in force, and those that a reset goes back to.
class Palette {
  public:
    static constexpr int size = 256;

    Palette();

    [[nodiscard]] Rgb colour(int index) const { return colours_[static_cast<std::size_t>(index & 0xFF)]; }
    [[nodiscard]] Rgb colour(ColourRole role) const { return roles_[static_cast<std::size_t>(role)]; }
    void set(int index, Rgb colour) { colours_[static_cast<std::size_t>(index & 0xFF)] = colour; }
    void set(ColourRole role, Rgb colour) { roles_[static_cast<std::size_t>(role)] = colour; }
    void reset(int index) { set(index, standard_colours_[static_cast<std::size_t>(index & 0xFF)]); }
    void reset(ColourRole role) { set(role, standard_roles_[static_cast<std::size_t>(role)]); }
    /// All 256, not those by role.
    void reset_indexed() { colours_ = standard_colours_; }
    void reset_all();
    void set_standard(Rgb foreground, Rgb background, Rgb cursor, std::span<const Rgb> colours);

  private:
    std::array<Rgb, size> standard_colours_;
    std::array<Rgb, 3> standard_roles_;
    std::array<Rgb, size> colours_;
    std::array<Rgb, 3> roles_;
};

}  // namespace terminal
