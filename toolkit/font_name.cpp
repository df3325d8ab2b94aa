// SPDX-License-Identifier: MIT
#include "toolkit/font_name.h"

#include <charconv>
#include <optional>
#include <vector>

namespace {

constexpr double largest = 200;

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

/// A size within reason.
std::optional<double> size_in(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && number >= 1 && number <= largest ? std::optional(number) : std::nullopt;
}

std::string family_in(std::string_view text) {
    return text == "fixed" || text == "monospace" || text == "*" ? std::string() : std::string(text);
}

/// "-foundry-family-weight-slant-width-style-pixels-decipoints-..." (X Logical Font Description Conventions).
FontDescription from_logical_description(std::string_view name) {
    std::vector<std::string_view> fields = split(name.substr(1), '-');
    fields.resize(14);
    FontDescription description;
    description.family = family_in(fields[1]);
    description.bold = fields[2] == "bold" || fields[2] == "demibold";
    description.italic = fields[3] == "i" || fields[3] == "o";
    description.pixels = static_cast<int>(size_in(fields[6]).value_or(0));
    if (const auto decipoints = fields[7]; description.pixels == 0 && decipoints.size() > 1) {
        double tenths = 0;
        std::from_chars(decipoints.data(), decipoints.data() + decipoints.size(), tenths);
        description.points = tenths >= 10 && tenths <= 10 * largest ? tenths / 10 : 0;
    }
    return description;
}

/// "9x15" or "9x15bold": the cell's width and height in pixels.
std::optional<FontDescription> from_cell_name(std::string_view name) {
    const std::size_t cross = name.find('x');
    if (cross == std::string_view::npos || !size_in(name.substr(0, cross))) {
        return std::nullopt;
    }
    std::string_view height = name.substr(cross + 1);
    FontDescription description;
    if (height.ends_with("bold")) {
        description.bold = true;
        height.remove_suffix(4);
    }
    const auto pixels = size_in(height);
    if (!pixels) {
        return std::nullopt;
    }
    description.cell_pixels = static_cast<int>(*pixels);
    return description;
}

void apply_property(std::string_view property, FontDescription& description) {
    const std::size_t equals = property.find('=');
    const std::string_view key = property.substr(0, equals);
    const std::string_view value = equals == std::string_view::npos ? "" : property.substr(equals + 1);
    if (key == "size" || key == "pointsize") {
        description.points = size_in(value).value_or(0);
    } else if (key == "pixelsize") {
        description.pixels = static_cast<int>(size_in(value).value_or(0));
    } else if (key == "bold" || value == "bold") {
        description.bold = true;
    } else if (key == "italic" || value == "italic") {
        description.italic = true;
    }
}

FontDescription from_pattern(std::string_view name) {
    const std::vector<std::string_view> parts = split(name, ':');
    std::string_view family = parts.front();
    FontDescription description;
    const std::size_t dash = family.rfind('-');
    if (dash != std::string_view::npos) {
        if (const auto points = size_in(family.substr(dash + 1))) {
            description.points = *points;
            family = family.substr(0, dash);
        }
    }
    description.family = family_in(family);
    for (std::size_t i = 1; i < parts.size(); ++i) {
        apply_property(parts[i], description);
    }
    return description;
}

}  // namespace

FontDescription parse_font_name(std::string_view name) {
    if (name.starts_with('-')) {
        return from_logical_description(name);
    }
    if (const auto description = from_cell_name(name)) {
        return *description;
    }
    return from_pattern(name);
}
