// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <memory>

/// "Message Board": messages of start-up and echoes of background commands.
struct MessageBoard : CommandFrame {
    MessageBoard() : CommandFrame("Message Board") { text.set_display_size(72, 16); }

    TextPane text{panel, "Message Board text"};
};

inline std::unique_ptr<MessageBoard> Orvik_popup17;
inline MessageBoard& message_board() { return *Orvik_popup17; }
