// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"
#include "toolkit/text_pane.h"

#include <memory>

/// "Send Email": a letter with the selected files.
struct SendEmail : CommandFrame {
    SendEmail() : CommandFrame("Send Email") { text.set_display_size(72, 16); }

    Row buttons{panel};
    Button clear{buttons, "Clear", SendMailClear};
    Button addresses{buttons, "Addresses", SendFIleAddresses};
    Button send{buttons, "Send", SendFIleSendButton};
    Stretch behind_buttons{buttons};
    TextField to{panel, "To:"};
    TextField cc{panel, "Cc:"};
    TextField subject{panel, "Subject:"};
    TextPane text{panel, "Send Email text"};
};

inline std::unique_ptr<SendEmail> Orvik_popup38;
inline SendEmail& send_email() { return *Orvik_popup38; }
