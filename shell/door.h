// SPDX-License-Identifier: MIT
#pragma once

#include "shell/waiting_lines.h"
#include "toolkit/notify.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// The one door to the user's shell: whatever the tool types goes through here. Features compose a
// `CommandLine` and `send` it; see shell/send.h.

/// Where a line's line feeds stand.
enum class LineFeeds : std::uint8_t { behind, before_and_behind };

/// Types a text followed by a line feed; it waits where no shell reads. Returns an empty message, or why it
/// is not typed: it holds a control character, is longer than the shell's terminal takes in one line, or the
/// shell has ended.
/// Behind a program, it waits for that in the terminal's background as well.
[[nodiscard]] Message type_line(std::string_view text, LineFeeds line_feeds = LineFeeds::behind,
                                std::string behind = {});
/// Types a text that its user is to complete, whatever runs; refusals as above.
[[nodiscard]] Message type_text(std::string_view text);
/// Types one control character: "U" for ^U.
void type_control(char letter);

/// The lines that wait for the shell.
[[nodiscard]] WaitingLines& waiting_lines();
/// Begins with none, for a terminal whose shell is yet to be started. `changed` is called when what waits has
/// changed.
void begin_waiting_lines(std::function<void()> changed);
