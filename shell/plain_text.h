// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Whether a text is UTF-8 (The Unicode Standard, table 3-7) of characters that line editors put into the
/// line as they are: neither noncharacters nor private use, which some use for marks of their own, nor the
/// control characters U+0080 to U+009F. ASCII control characters are not looked at.
bool is_plain_utf8(std::string_view text);

/// Whether a text holds nothing beyond ASCII.
bool is_ascii(std::string_view text);
