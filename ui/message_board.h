// SPDX-License-Identifier: MIT
#pragma once

#include "app/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <memory>

/// "Message Board": messages of start-up and echoes of background commands.
struct MessageBoard : CommandFrame {
    MessageBoard() : CommandFrame("Message Board") {
        save.set_default();
        file_name.set_text("messageboard.txt");
        text.set_display_size(72, 16);
        text.set_line_limit(most_lines);
    }

    static constexpr int most_lines = 10'000;

    Row buttons{panel};
    Button save{buttons, "Save", MessageBoardSave};
    Button clear{buttons, "Clear", MessageBoardClear};
    Stretch stretch{buttons};
    TextField file_name{panel, "File Name:"};
    TextPane text{panel, "Message Board text"};
};

inline std::unique_ptr<MessageBoard> Orvik_popup17;
inline MessageBoard& message_board() { return *Orvik_popup17; }
