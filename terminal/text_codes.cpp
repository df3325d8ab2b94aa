// SPDX-License-Identifier: MIT
#include "terminal/text_codes.h"

#include <charconv>
#include <cstdint>

namespace terminal {

namespace {

constexpr std::string_view hexadecimal_digits = "0123456789ABCDEF";
constexpr std::string_view base64_digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::size_t digit_value(char digit) {
    return hexadecimal_digits.find(digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A')
                                                                : digit);
}

}  // namespace

std::string_view take_field(std::string_view& text) {
    const std::size_t end = text.find(';');
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return field;
}

int parse_number(std::string_view text) {
    int value = -1;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc{} && result.ptr == end ? value : -1;
}

std::string hexadecimal(std::string_view bytes) {
    std::string digits;
    for (const char character : bytes) {
        const auto byte = static_cast<std::uint8_t>(character);
        digits += hexadecimal_digits[byte >> 4];
        digits += hexadecimal_digits[byte & 0x0F];
    }
    return digits;
}

std::string from_hexadecimal(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        const std::size_t high = digit_value(digits[i]);
        const std::size_t low = digit_value(digits[i + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos) {
            break;
        }
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

std::string from_base64(std::string_view text) {
    while (text.ends_with('=')) {
        text.remove_suffix(1);
    }
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char digit : text) {
        const std::size_t value = base64_digits.find(digit);
        if (value == std::string_view::npos) {
            return {};
        }
        bits = (bits << 6 | static_cast<std::uint32_t>(value)) & 0xFFFFFF;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 0xFF);
        }
    }
    return bytes;
}

}  // namespace terminal
