// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Takes a line from the front of a file's text, without its line feed. A longer line than 1023 bytes is
/// taken in pieces of that size, each as a line of its own. What follows a NUL in the line is dropped.
std::string_view take_line(std::string_view& rest);

/// The lines behind the first of a file's text; nothing when that does not hold `mark`, which tells what the
/// file is.
std::optional<std::vector<std::string>> lines_behind_mark(std::string_view contents, std::string_view mark);
