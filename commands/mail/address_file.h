// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The file of addresses: one a line. What follows a "#" is a comment and is kept.

/// The addresses in a file's text, in their order.
std::vector<std::string> listed_addresses(std::string_view text);

/// A file's text with these addresses in place of its own. The comment on an address's line and the lines
/// above it go with the address; those of an address that is gone stand before the next one.
std::string with_addresses(std::string_view text, const std::vector<std::string>& addresses);
