// SPDX-License-Identifier: MIT
#include "shell/send_line.h"

#include "shell/shell.h"
#include "shell/status.h"
#include "toolkit/frame.h"

bool send_line(Frame& frame, std::string_view line) {
    const std::string refusal = type_line(line);
    frame.set_left_footer(refusal);
    if (refusal.empty()) {
        SetupTimer(refresh_after_command);
    }
    return refusal.empty();
}
