// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Which labels "Select Files" looks for.
struct NamePattern {
    enum class Place : unsigned char { anywhere, beginning, end };  ///< in the order of "Match"

    Place place = Place::anywhere;
    bool case_sensitive = false;
    std::string text;

    [[nodiscard]] bool matches(std::string_view label) const;
};
