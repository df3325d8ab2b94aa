// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <cstdint>
#include <string_view>

// The one door to the user's shell: whatever the tool types goes through here. Features compose a
// `CommandLine` and `send` it; see shell/send.h.

/// Where a line's line feeds stand.
enum class LineFeeds : std::uint8_t { behind, before_and_behind };

/// Types a text followed by a line feed. Returns an empty message, or why it was not typed: it holds a
/// control character, or is longer than the shell's terminal takes in one line.
[[nodiscard]] Message type_line(std::string_view text, LineFeeds line_feeds = LineFeeds::behind);
/// Types a text that its user is to complete; refusals as above.
[[nodiscard]] Message type_text(std::string_view text);
/// Types one control character: "U" for ^U.
void type_control(char letter);
