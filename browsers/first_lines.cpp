// SPDX-License-Identifier: MIT
#include "browsers/first_lines.h"

#include <algorithm>

std::string_view first_lines(std::string_view text, int lines, std::size_t longest) {
    std::size_t end = 0;
    for (int line = 0; line < lines && end < text.size(); ++line) {
        const std::size_t feed = text.substr(end, longest).find('\n');
        end = feed == text.npos ? std::min(end + longest, text.size()) : end + feed + 1;
    }
    return text.substr(0, end);
}
