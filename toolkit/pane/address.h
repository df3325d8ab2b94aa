// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/terminal.h"

#include <string>

/// A web address in the text of a terminal.
struct PlainAddress {
    std::string text;       ///< empty where there is none
    terminal::Range range;  ///< where it stands; across the end of a row where its line wraps
};

/// The web address (http, https) that a cell belongs to, as it is written: up to a blank, a quote, or another
/// character that addresses do not hold. What ends a sentence, or closes a parenthesis opened before it, is
/// not part of it.
[[nodiscard]] PlainAddress address_at(const terminal::Terminal& terminal, terminal::Position place);
