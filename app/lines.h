// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// Takes a line from the front of a file's text, without its line feed. A longer line than 1023 bytes is
/// taken in pieces of that size, each as a line of its own. What follows a NUL in the line is dropped.
std::string_view take_line(std::string_view& rest);
