// SPDX-License-Identifier: MIT
#include "shell/door.h"

#include "shell/foreground.h"
#include "shell/process.h"
#include "shell/quoting.h"
#include "shell/shown_command.h"
#include "shell/status.h"
#include "ui/main_window.h"
#include "ui/status_display.h"

#include <cassert>
#include <optional>
#include <utility>

#include <fmt/format.h>

namespace {

/// The line discipline keeps 4,095 bytes of a line and silently drops the rest (termios(3), canonical mode).
constexpr std::size_t longest_canonical_line = 4095;
/// ksh93's vi editor keeps 1,019 bytes and silently drops the rest; whether it is on cannot be seen.
constexpr std::size_t longest_ksh_line = 1000;

std::optional<WaitingLines> lines;

bool is_too_long(std::string_view text) {
    const bool cut_by_ksh = user_shell.family == ShellFamily::ksh && text.size() > longest_ksh_line;
    const PaneUse use = main_window().termpane.use();
    return cut_by_ksh || (text.size() + 1 > longest_canonical_line && use.in_front && use.reads_lines);
}

/// Why a text is not typed; empty when it may be.
Message type_refusal(std::string_view text) {
    if (has_control_characters(text)) {
        return "Command holds control characters";
    }
    if (main_window().termpane.has_ended()) {
        return "The shell has ended. Return in the terminal starts a new one.";
    }
    return is_too_long(text) ? "Command is too long for the shell" : "";
}

void give(const std::string& line) {
    ttysw_input(main_window().termpane, line);
    SetupTimer(refresh_after_command);
}

}  // namespace

WaitingLines& waiting_lines() {
    assert(lines);
    return *lines;
}

void begin_waiting_lines(std::function<void()> changed) {
    lines.emplace(
        WaitingLines::Surroundings{.use = [] { return main_window().termpane.use(); },
                                   .program_name = program_name,
                                   .works_in_background = works_in_background,
                                   .half_typed = is_command_half_typed,
                                   .hook_stamp = [] { return stamp_of(status_display().status_file.text()); },
                                   .give = give,
                                   .changed = std::move(changed)});
}

Message type_line(std::string_view text, LineFeeds line_feeds, std::string behind) {
    Message refusal = type_refusal(text);
    if (refusal.empty()) {
        const std::string_view before = line_feeds == LineFeeds::before_and_behind ? "\n" : "";
        waiting_lines().submit({.text = fmt::format("{}{}\n", before, text), .behind = std::move(behind)});
    }
    return refusal;
}

Message type_text(std::string_view text) {
    Message refusal = type_refusal(text);
    if (refusal.empty()) {
        ttysw_input(main_window().termpane, text);
    }
    return refusal;
}

void type_control(char letter) {
    constexpr char control_bits = 0x1F;
    const char character = static_cast<char>(letter & control_bits);
    ttysw_input(main_window().termpane, {&character, 1});
}
