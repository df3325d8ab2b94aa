// SPDX-License-Identifier: MIT
#include "settings/history_format.h"

#include "shell/lines.h"

#include <algorithm>
#include <utility>

std::optional<std::vector<std::string>> parse_history(std::string_view contents) {
    return lines_behind_mark(contents, "ORVIK_HISTORY");
}

std::string format_history(std::span<const std::string> commands) {
    std::string contents = "$ORVIK_HISTORY\n";
    for (const std::string& command : commands) {
        contents.append(command) += '\n';
    }
    return contents;
}

bool is_recorded(std::size_t length, int longer_than, Recording recording) {
    constexpr std::size_t longest = 79;
    return recording == Recording::on && length <= longest && std::cmp_greater(length, longer_than);
}

std::string_view sort_refusal(std::size_t commands) {
    constexpr std::size_t fewest = 2;
    constexpr std::size_t too_many = 8196;
    if (commands < fewest) {
        return "Nothing to sort";
    }
    return commands < too_many ? "" : "Too many commands to sort";
}

std::optional<int> find_command_row(std::span<const std::string> commands, std::string_view text, int first) {
    for (auto row = static_cast<std::size_t>(first); row < commands.size(); ++row) {
        if (commands[row].find(text) != std::string::npos) {
            return static_cast<int>(row);
        }
    }
    return std::nullopt;
}
