// SPDX-License-Identifier: MIT
#pragma once

#include "settings/notify.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Function Keys": the commands that the function keys type.
struct FunctionKeys : CommandFrame {
    FunctionKeys() : CommandFrame("Function Keys") { function_key_7_command.set_display_length(48); }

    TextField function_key_7_command{panel, "Function Key 7 Command:", FunctionKey6};
    TextField function_key_8_command{panel, "Function Key 8 Command:", FunctionKey7};
    TextField function_key_9_command{panel, "Function Key 9 Command:", FunctionKey8};
};

inline std::unique_ptr<FunctionKeys> Orvik_popup11;
inline FunctionKeys& function_keys() { return *Orvik_popup11; }
