// SPDX-License-Identifier: MIT
#include "settings/command_list_format.h"

#include "shell/lines.h"
#include "shell/text.h"

#include <algorithm>

std::optional<std::vector<std::string>> parse_commands(std::string_view contents) {
    return lines_behind_mark(contents, "_COMMANDS");
}

std::string without_comment(std::string_view row) { return remove_trailing_spaces(remove_comments1(row)); }

std::optional<std::string> fill_template(std::string_view row, std::span<const Placeholder> placeholders) {
    constexpr int most_of_a_kind = 2;
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
