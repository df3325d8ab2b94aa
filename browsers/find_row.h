// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

// Searching the rows of a list. Nothing here knows a window.

/// Where a row must hold what is searched, in the order of "Search".
enum class MatchAt { beginning, anywhere, end };

struct RowSearch {
    std::string text;  ///< not empty
    MatchAt at = MatchAt::anywhere;
    bool case_sensitive = false;

    /// A text as it is compared.
    [[nodiscard]] std::string compared(std::string_view row) const;
};

/// The first row from `first` on that matches; nothing when none does.
std::optional<int> find_row(std::span<const std::string> rows, const RowSearch& search, int first);
