// SPDX-License-Identifier: MIT
#include "shell/lines.h"

#include <algorithm>

std::string_view take_line(std::string_view& rest) {
    constexpr std::size_t longest = 1023;
    // Looking no further keeps the reading of a huge line linear.
    const std::size_t end = rest.substr(0, longest + 1).find('\n');
    const std::size_t size = std::min({end, rest.size(), longest});
    const std::string_view line = rest.substr(0, size);
    rest.remove_prefix(size == end ? size + 1 : size);
    return line.substr(0, line.find('\0'));
}

std::optional<std::vector<std::string>> lines_behind_mark(std::string_view contents, std::string_view mark) {
    if (take_line(contents).find(mark) == std::string_view::npos) {
        return std::nullopt;
    }
    std::vector<std::string> lines;
    while (!contents.empty()) {
        lines.emplace_back(take_line(contents));
    }
    return lines;
}
