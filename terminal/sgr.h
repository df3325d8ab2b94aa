// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/parameters.h"
#include "terminal/style.h"

#include <cstddef>
#include <string>

namespace terminal {

/// Select Graphic Rendition (ECMA-48 8.3.117), with xterm's 256 and direct colours (both as 38;5;n and as
/// 38:5:n of ISO 8613-6), underline styles (4:n) and underline colours (58, 59). Begins at parameter `first`.
void apply_sgr(const Parameters& parameters, Style& style, std::size_t first = 0);

/// The parameters that make this style from any other, "0;1;31" say.
std::string sgr_text(const Style& style);

}  // namespace terminal
