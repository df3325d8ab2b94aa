// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "USB Memory": a memory stick that is mounted by the shell.
struct UsbMemory : CommandFrame {
    UsbMemory() : CommandFrame("USB Memory") {
        name.set_display_length(28);
        sudo.set_value(true);
        name.set_text("/mnt/usb");
    }

    CheckBox sudo{panel, "Sudo"};
    Row buttons{panel, Place::field};
    Button mount{buttons, "Mount", USBmemoryMount};
    Button unmount{buttons, "Unmount", USBmemoryUnmount};
    Button display{buttons, "Display", USBmemoryDisplay};
    Stretch behind_buttons{buttons};
    TextField name{panel, "Name:"};
};

inline std::unique_ptr<UsbMemory> Orvik_popup41;
inline UsbMemory& usb_memory() { return *Orvik_popup41; }
