// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Remote File Transfer": files copied between this host and others.
struct RemoteFileTransfer : CommandFrame {
    RemoteFileTransfer() : CommandFrame("Remote File Transfer") {
        constexpr int scp = 1;
        copy_command.set_value(scp);
        source_files.set_display_length(40);
    }

    Choice host{panel, "Host", {"Host 1", "Host 2", "Host 3", "Host 4", "Host 5"}};
    Choice copy_mode{panel, {"Copy", "Copy (mode)"}, {"File", "Directory"}};
    TextField host_name{panel, "Host Name:"};
    Choice copy_command{panel, "Copy Command", {"rcp", "scp"}};
    TextField user_name{panel, "User Name:"};
    TextField destination_directory{panel, "Destination Directory:"};
    TextField source_files{panel, "Source File(s):"};
};

inline std::unique_ptr<RemoteFileTransfer> Orvik_popup20;
inline RemoteFileTransfer& remote_file_transfer_window() { return *Orvik_popup20; }
