// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace terminal {

/// Cuts the text up to the next semicolon off.
std::string_view take_field(std::string_view& text);
/// A number of digits only; -1 for anything else.
int parse_number(std::string_view text);

/// Two digits for each byte.
std::string hexadecimal(std::string_view bytes);
/// The bytes, up to the first thing that is no pair of digits.
std::string from_hexadecimal(std::string_view digits);
/// The bytes that a text in base 64 (RFC 4648) writes; empty for anything else.
std::string from_base64(std::string_view text);

}  // namespace terminal
