// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// What is said of a program that no directory of the tool's PATH holds, and which Debian package has it;
/// empty for one that is there.
[[nodiscard]] std::string missing_program(std::string_view name);
