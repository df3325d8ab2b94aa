// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

/// The first lines of a file, or why they cannot be shown.
struct Head {
    std::string path;
    std::string lines;
    Message refusal;
};

/// Reads them. Touches no window.
Head head_of(const std::string& path);

/// Appends them to the Message Board, and shows that. Returns the refusal if there is one.
Message show_head(const Head& head);
