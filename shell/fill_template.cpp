// SPDX-License-Identifier: MIT
#include "shell/fill_template.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

std::string nothing_to_put(std::string_view mark) { return fmt::format("Nothing to put for {}", mark); }

std::optional<std::string> fill_template(std::string_view row, std::span<const Placeholder> placeholders,
                                         int most_of_a_kind) {
    std::vector<int> filled(placeholders.size(), 0);
    std::string command;
    while (!row.empty()) {
        const auto next = std::ranges::find_if(placeholders, [row](const Placeholder& placeholder) {
            return row.starts_with(placeholder.mark);
        });
        if (next == placeholders.end() || filled[next - placeholders.begin()]++ >= most_of_a_kind) {
            command += row.front();
            row.remove_prefix(1);
            continue;
        }
        const std::optional<std::string> text = next->text(command);
        if (!text) {
            return std::nullopt;
        }
        command += *text;
        row.remove_prefix(next->mark.size());
    }
    return command;
}
