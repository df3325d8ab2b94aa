// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// What libFuzzer calls with each input. Defined once in each target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// An input as text.
inline std::string_view as_text(const std::uint8_t* data, std::size_t size) {
    return size == 0 ? std::string_view{} : std::string_view(reinterpret_cast<const char*>(data), size);
}

/// Cuts the text up to the next NUL off, for inputs of several parts.
inline std::string_view take_part(std::string_view& rest) {
    const std::string_view part = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}
