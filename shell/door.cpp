// SPDX-License-Identifier: MIT
#include "shell/door.h"

#include "shell/process.h"
#include "shell/quoting.h"
#include "ui/main_window.h"

#include <fmt/format.h>

namespace {

/// The line discipline keeps 4,095 bytes of a line and silently drops the rest (termios(3), canonical mode).
constexpr std::size_t longest_canonical_line = 4095;
/// ksh93's vi editor keeps 1,019 bytes and silently drops the rest; whether it is on cannot be seen.
constexpr std::size_t longest_ksh_line = 1000;

/// Why a text is not typed; empty when it may be.
Message type_refusal(std::string_view text) {
    if (has_control_characters(text)) {
        return "Command holds control characters";
    }
    const bool cut_by_ksh = user_shell.family == ShellFamily::ksh && text.size() > longest_ksh_line;
    if (cut_by_ksh || (text.size() + 1 > longest_canonical_line && main_window().termpane.reads_lines())) {
        return "Command is too long for the shell";
    }
    return {};
}

}  // namespace

Message type_line(std::string_view text, LineFeeds line_feeds) {
    Message refusal = type_refusal(text);
    if (refusal.empty()) {
        const std::string_view before = line_feeds == LineFeeds::before_and_behind ? "\n" : "";
        ttysw_input(main_window().termpane, fmt::format("{}{}\n", before, text));
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
