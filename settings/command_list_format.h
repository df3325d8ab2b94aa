// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Command lists: files of command templates, and how a template becomes a command.

/// The rows of a commands file; nothing when its first line does not hold "_COMMANDS". Lines are taken as in
/// a history file.
[[nodiscard]] std::optional<std::vector<std::string>> parse_commands(std::string_view contents);

/// A row without what stands in "/*" and "*/" and without the blanks at its end.
[[nodiscard]] std::string without_comment(std::string_view row);

/// What stands for a placeholder of a template.
struct Placeholder {
    std::string_view mark;
    /// Gives the text for one place in the command, of which `before` is the beginning; nothing when no text
    /// may stand there.
    std::function<std::optional<std::string>(std::string_view before)> text;
};

/// Fills the first two of each placeholder; further ones stay. What has been filled in is not searched for
/// placeholders. Nothing when a text was not to be had.
[[nodiscard]] std::optional<std::string> fill_template(std::string_view row,
                                                       std::span<const Placeholder> placeholders);
