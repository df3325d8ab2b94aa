// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "settings/setup_format.h"

#include <algorithm>
#include <span>

/// The setup file. Values that can be written come back; values that were read can be written, but for those
/// that fill a line wholly.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto lines = parse_setup(as_text(data, size));
    if (!lines) {
        return 0;
    }
    const auto values = std::span(*lines).last<setup_lines - 1>();
    if (const auto unwritable = unwritable_setup_line(values)) {
        require(lines->at(*unwritable - 1).size() == longest_setup_line, "a line that was read is refused");
        return 0;
    }
    const auto again = parse_setup(format_setup(values));
    require(again && std::equal(lines->begin() + 1, lines->end(), again->begin() + 1),
            "values do not come back");
    for (const std::string& line : *lines) {
        const int number = parse_number(line);
        require(parse_number(std::to_string(number)) == number, "a number does not come back");
    }
    return 0;
}
