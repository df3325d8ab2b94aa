// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

/// The first so many lines of a text, with their line feeds. A line that is longer than `longest` counts as
/// several.
std::string_view first_lines(std::string_view text, int lines, std::size_t longest);
