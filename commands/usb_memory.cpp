// SPDX-License-Identifier: MIT
// "USB Memory".
#include "ui/usb_memory.h"

#include "browsers/tree/open_node.h"
#include "commands/notify.h"
#include "shell/operands.h"
#include "shell/send.h"

namespace {

/// What is done with the medium that the window names.
template <typename Action>
Message with_medium(Action action) {
    const std::string name = usb_memory().name.text();
    return name.empty() ? "Directory name not specified" : action(path_meant(name));
}

Message type_for_medium(Words command, Words command_with_sudo) {
    return with_medium([&](const std::string& medium) {
        return send(CommandLine(usb_memory().sudo.value() ? command_with_sudo : command).path(medium));
    });
}

}  // namespace

void UsbMemoryOpen() { usb_memory().open(); }

Message USBmemoryMount() { return type_for_medium("mount", "sudo mount"); }

Message USBmemoryUnmount() { return type_for_medium("umount", "sudo umount"); }

Message USBmemoryDisplay() { return with_medium(SetRootDisplay); }
