// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Remote File Transfer": files copied between this host and others.
struct RemoteFileTransfer : CommandFrame {
    RemoteFileTransfer() : CommandFrame("Remote File Transfer") {
        constexpr int scp = 1;
        copy_command.set_value(scp);
        copy_command.set_tool_tip("rcp does not encrypt and is rarely installed today");
        destination_directory.set_display_length(40);
        source_files.set_display_length(40);
        copy_to_host.set_tool_tip("Copy what is selected in the tree to the host");
        copy_from_host.set_tool_tip("Copy from the host over what is selected in the tree");
    }

    Choice host{panel, "Host", {"Host 1", "Host 2", "Host 3", "Host 4", "Host 5"}, RemoteFileTransferHost};
    Choice copy_mode{panel, {"Copy", "Copy (mode)"}, {"File", "Directory"}};
    TextField host_name{panel, "Host Name:"};
    Choice copy_command{panel, "Copy Command", {"rcp", "scp"}};
    TextField user_name{panel, "User Name:"};
    Row to_host{panel, "Destination Directory:"};
    TextField destination_directory{to_host, {"", "Destination Directory:"}};
    Button copy_to_host{to_host, {"Copy", "Copy (to host)"}, RemoteFIleTransferCopyToHost};
    Row from_host{panel, "Source File(s):"};
    TextField source_files{from_host, {"", "Source File(s):"}};
    Button copy_from_host{from_host, {"Copy", "Copy (from host)"}, RemoteFIleTransferCopyfromHost};
};

inline std::unique_ptr<RemoteFileTransfer> Orvik_popup20;
inline RemoteFileTransfer& remote_file_transfer_window() { return *Orvik_popup20; }
