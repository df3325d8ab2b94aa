// SPDX-License-Identifier: MIT
#pragma once

#include "commands/notify.h"
#include "toolkit/buttons.h"
#include "toolkit/choices.h"
#include "toolkit/fields.h"
#include "toolkit/frame.h"

#include <memory>

/// "Remote Hosts": the hosts that the shell logs in to.
struct RemoteHosts : CommandFrame {
    RemoteHosts() : CommandFrame("Remote Hosts", 2) {
        rlogin.set_tool_tip("rlogin does not encrypt and is rarely installed today");
        set_display.set_tool_tip("What you start in the shell then shows its windows on that host");
    }

    TextField host_1{panel, "Host 1:"};
    TextField user_id_1{panel, {"User ID:", "User ID: (host 1)"}};
    TextField host_2{panel, "Host 2:"};
    TextField user_id_2{panel, {"User ID:", "User ID: (host 2)"}};
    TextField host_3{panel, "Host 3:"};
    TextField user_id_3{panel, {"User ID:", "User ID: (host 3)"}};
    TextField host_4{panel, "Host 4:"};
    TextField user_id_4{panel, {"User ID:", "User ID: (host 4)"}};
    TextField host_5{panel, "Host 5:"};
    TextField user_id_5{panel, {"User ID:", "User ID: (host 5)"}};
    TextField my_host{panel, "My Host:"};
    Choice select_host{panel, "Select Host", {"Host 1", "Host 2", "Host 3", "Host 4", "Host 5", "My Host"}};
    Row buttons{panel};
    Button rlogin{buttons, "Rlogin", RemoteHostsRlogin};
    Button ssh{buttons, "Secure Shell (ssh)", RemoteHostsSsh};
    Button set_display{buttons, "Set Display", RemoteHostsSetDisplay};
    Stretch behind_buttons{buttons};
};

inline std::unique_ptr<RemoteHosts> Orvik_popup19;
inline RemoteHosts& remote_hosts() { return *Orvik_popup19; }
