// SPDX-License-Identifier: MIT
#include "browsers/find_row.h"

#include "shell/text.h"

namespace {

bool matches(std::string_view row, std::string_view text, MatchAt at) {
    switch (at) {
        case MatchAt::beginning:
            return row.starts_with(text);
        case MatchAt::end:
            return row.ends_with(text);
        default:
            return row.find(text) != row.npos;
    }
}

}  // namespace

std::string RowSearch::compared(std::string_view row) const {
    return case_sensitive ? std::string(row) : convert_tolower(row);
}

std::optional<int> find_row(std::span<const std::string> rows, const RowSearch& search, int first) {
    const std::string text = search.compared(search.text);
    for (auto row = static_cast<std::size_t>(first); row < rows.size(); ++row) {
        if (matches(search.compared(rows[row]), text, search.at)) {
            return static_cast<int>(row);
        }
    }
    return std::nullopt;
}
