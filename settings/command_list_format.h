// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Command lists: files of command templates.

/// The rows of a commands file; nothing when its first line does not hold "_COMMANDS". Lines are taken as in
/// a history file.
[[nodiscard]] std::optional<std::vector<std::string>> parse_commands(std::string_view contents);

/// A row without what stands in "/*" and "*/" and without the blanks at its end.
[[nodiscard]] std::string without_comment(std::string_view row);
