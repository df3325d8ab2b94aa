// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// What stands for a placeholder of a template.
struct Placeholder {
    std::string_view mark;
    /// Gives the text for one place in the command, of which `before` is the beginning; nothing when no text
    /// may stand there.
    std::function<std::optional<std::string>(std::string_view before)> text;
};

/// The message for a placeholder that there is no name for: without one `rm -r @@@/*` would be `rm -r /*`.
[[nodiscard]] std::string nothing_to_put(std::string_view mark);

/// Fills the first `most_of_a_kind` of each placeholder; further ones stay. What has been filled in is not
/// searched for placeholders. Nothing when a text was not to be had.
[[nodiscard]] std::optional<std::string> fill_template(std::string_view row,
                                                       std::span<const Placeholder> placeholders,
                                                       int most_of_a_kind);
