// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

class QFont;

enum class FontFamily : std::uint8_t { standard, fixed_width };
enum class FontStyle : std::uint8_t { normal, bold };
enum class FontScale : std::uint8_t { small, medium, large, extra_large };

/// A font handle: a light value that can be copied freely. Empty until it is found.
class Font {
  public:
    Font() = default;
    explicit Font(const QFont& font);
    [[nodiscard]] const QFont& qt() const { return *font_; }
    [[nodiscard]] explicit operator bool() const { return font_ != nullptr; }

  private:
    std::shared_ptr<const QFont> font_;
};

/// What to look for: one of the toolkit's families at a scale.
struct FontRequest {
    FontFamily family = FontFamily::standard;
    FontStyle style = FontStyle::normal;
    FontScale scale = FontScale::medium;
    std::optional<int> points;  ///< overrides the scale
};

/// Finds a font; there is always one.
Font xv_find(const FontRequest& request);
/// Finds a fixed-width font by name: "fixed" (the desktop's own), an X logical font description, an X cell
/// name as "9x15", or "Family", "Family-12", "Family:size=12:bold". A family that is not there or not of
/// fixed width gives the desktop's own instead.
Font xv_find(std::string_view name);
