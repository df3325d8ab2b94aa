// SPDX-License-Identifier: MIT
// "Remote Hosts": logging in, and windows that show themselves there.
#include "commands/missing.h"
#include "commands/notify.h"
#include "commands/remote/host_list.h"
#include "shell/process.h"
#include "shell/send.h"
#include "ui/remote_hosts.h"

#include <array>

namespace {

/// A host and the log-in name there. "My Host" has none.
struct HostRow {
    TextField RemoteHosts::*host;
    TextField RemoteHosts::*user = nullptr;
};

/// In the order of "Select Host".
constexpr std::array host_rows{
    HostRow{&RemoteHosts::host_1, &RemoteHosts::user_id_1},
    HostRow{&RemoteHosts::host_2, &RemoteHosts::user_id_2},
    HostRow{&RemoteHosts::host_3, &RemoteHosts::user_id_3},
    HostRow{&RemoteHosts::host_4, &RemoteHosts::user_id_4},
    HostRow{&RemoteHosts::host_5, &RemoteHosts::user_id_5},
    HostRow{&RemoteHosts::my_host},
};

/// Does something with the account that is chosen.
template <typename Action>
Message with_chosen_account(Action action) {
    const Account account = listed_account(remote_hosts().select_host.value());
    if (account.host.empty()) {
        return "Host name not specified";
    }
    const std::string_view fault = account_fault(account);
    return fault.empty() ? action(account) : Message(fault);
}

Message log_in(Words program) {
    return with_chosen_account([program](const Account& account) {
        CommandLine line(program);
        if (!account.user.empty()) {
            line.word("-l").text(account.user);
        }
        Message refusal = send(line.host(account.host));
        if (refusal.empty()) {
            report_missing(program.text());
        }
        return refusal;
    });
}

}  // namespace

Account listed_account(int row) {
    const HostRow& fields = host_rows.at(static_cast<std::size_t>(row));
    return {.user = fields.user == nullptr ? "" : name_in_field((remote_hosts().*fields.user).text()),
            .host = name_in_field((remote_hosts().*fields.host).text())};
}

Message RemoteHostsRlogin() { return log_in("rlogin"); }

Message RemoteHostsSsh() { return log_in("ssh"); }

Message RemoteHostsSetDisplay() {
    return with_chosen_account([](const Account& account) {
        const std::string display = account.host + ":0.0";
        if (user_shell.family == ShellFamily::csh) {
            return send(CommandLine("setenv DISPLAY").text(display));
        }
        // A host's name means nothing else to a shell, so that it needs no quotes.
        return send(CommandLine().raw("DISPLAY=" + display + ";").word("export DISPLAY"));
    });
}
