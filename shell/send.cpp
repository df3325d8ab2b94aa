// SPDX-License-Identifier: MIT
#include "shell/send.h"

#include "shell/door.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/status.h"
#include "ui/default_settings.h"

Message send(const CommandLine& line, Remember remember) {
    const ComposedLine composed = line.typed_into(user_shell);
    const LineFeeds line_feeds =
        line.is_behind_line_feed() ? LineFeeds::before_and_behind : LineFeeds::behind;
    Message refusal =
        composed.refusal.empty() ? type_line(composed.text, line_feeds, line.is_behind()) : composed.refusal;
    if (!refusal.empty()) {
        return refusal;
    }
    if (remember == Remember::last_command) {
        default_settings().last_command.set_text(composed.text);
    } else if (remember == Remember::message_board) {
        report(fmt::format("{}\n", composed.text));
    }
    return {};
}

bool send_at_startup(const CommandLine& line, int refresh) {
    const Message refusal = send(line);
    if (refusal.empty()) {
        SetupTimer(refresh);
    } else {
        report(fmt::format("{}\n", refusal));
    }
    return refusal.empty();
}

Message type(const CommandLine& line) {
    const ComposedLine composed = line.typed_into(user_shell);
    return composed.refusal.empty() ? type_text(composed.text) : composed.refusal;
}
