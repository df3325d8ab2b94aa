// SPDX-License-Identifier: MIT
#include "settings/setup_format.h"

#include "shell/text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace {

constexpr std::string_view header = "$ORVIK_SETUP";
constexpr std::string_view header_word = "ORVIK_SETUP";

/// Takes what C's fgets would read from the front of the rest: to the line feed and with it, or as much as a
/// line may have.
std::string_view take_line(std::string_view& rest) {
    std::string_view line = rest.substr(0, longest_setup_line);
    if (const std::size_t line_feed = line.find('\n'); line_feed != std::string_view::npos) {
        line = line.substr(0, line_feed + 1);
    }
    rest.remove_prefix(line.size());
    return line;
}

bool comes_back(std::string_view value) {
    using namespace std::string_view_literals;
    return value.size() < longest_setup_line && value.find_first_of("\n\0"sv) == std::string_view::npos;
}

}  // namespace

std::optional<SetupLines> parse_setup(std::string_view contents) {
    SetupLines lines;
    for (std::string& line : lines) {
        const std::string_view taken = take_line(contents);
        line = remove_nl(taken.substr(0, taken.find('\0')));
    }
    if (lines.front().find(header_word) == std::string::npos) {
        return std::nullopt;
    }
    return lines;
}

std::string format_setup(SetupValues values) {
    std::string contents(header);
    contents += '\n';
    for (const std::string& value : values) {
        contents.append(value) += '\n';
    }
    return contents;
}

std::optional<std::size_t> unwritable_setup_line(SetupValues values) {
    const auto value = std::ranges::find_if_not(values, comes_back);
    if (value == values.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(value - values.begin()) + 2;
}

int parse_number(std::string_view value) {
    value.remove_prefix(std::min(value.find_first_not_of(" \t\n\v\f\r"), value.size()));
    const bool negative = value.starts_with('-');
    if (value.starts_with('+') && !value.starts_with("+-")) {  // from_chars takes no "+"
        value.remove_prefix(1);
    }
    int number = 0;
    const auto result = std::from_chars(value.data(), value.data() + value.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return number;
}
