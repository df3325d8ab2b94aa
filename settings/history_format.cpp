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

bool is_recorded(std::string_view command, int longer_than, Recording recording) {
    constexpr std::ptrdiff_t longest = 79;
    // In UTF-8 all bytes of a character but the first begin with the bits 10.
    const auto length = std::ranges::count_if(
        command, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
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
