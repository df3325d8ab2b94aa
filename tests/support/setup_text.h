// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

inline constexpr int last_setup_line = 90;

/// A setup file with these values on its lines; the others are empty, which is 0 for a number.
inline std::string setup_text(const std::map<int, std::string>& values) {
    std::string text = "$ORVIK_SETUP\n";
    for (int line = 2; line <= last_setup_line; ++line) {
        text += (values.contains(line) ? values.at(line) : "") + '\n';
    }
    return text;
}
