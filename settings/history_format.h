// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The history's rules that need no window: its file's text, what is recorded, sorting and searching.

/// The commands of a history file, oldest first; nothing when its first line does not hold "ORVIK_HISTORY". A
/// line of more than 1023 bytes makes several commands, a NUL ends its line, the last line feed may be
/// missing.
[[nodiscard]] std::optional<std::vector<std::string>> parse_history(std::string_view contents);
/// The text of a history file: the header, then one command a line.
[[nodiscard]] std::string format_history(std::span<const std::string> commands);

/// "History List" of "Command History Setup", in the order of its items.
enum class Recording : std::uint8_t { on, off };
/// Whether a command goes into the history: it has more characters than `longer_than`, and at most 79.
[[nodiscard]] bool is_recorded(std::string_view command, int longer_than, Recording recording);

/// Why so many commands are not sorted; empty when they can be.
[[nodiscard]] std::string_view sort_refusal(std::size_t commands);
/// The first command from row `first` on that holds the text.
[[nodiscard]] std::optional<int> find_command_row(std::span<const std::string> commands,
                                                  std::string_view text, int first);
