// SPDX-License-Identifier: MIT
// "Remote File Transfer": the files selected in the tree, copied to another host or from it.
#include "browsers/tree/walk.h"
#include "commands/missing.h"
#include "commands/notify.h"
#include "commands/remote/host_list.h"
#include "shell/send.h"
#include "ui/remote_file_transfer_window.h"

#include <array>

namespace {

/// In the order of "Copy Command".
constexpr std::array<Words, 2> programs{"rcp", "scp"};

/// What the window's fields ask for.
struct Transfer {
    CopyCommand command;
    Account account;
    std::string remote;
};

/// The line that copies one local file.
using LineFor = CommandLine (*)(const Transfer& transfer, const std::string& local);

Message copy_each(const Transfer& transfer, const std::vector<WalkedNode>& nodes, LineFor line_for) {
    for (const WalkedNode& node : nodes) {
        Message refusal = send(line_for(transfer, node.path), Remember::last_command);
        if (!refusal.empty()) {
            return refusal;
        }
    }
    report_missing(transfer.command.program.text());
    return {};
}

/// Copies each selected node. `remote` holds the path on the other host, and says so when it is empty.
Message transfer(const TextField& remote, std::string_view no_remote, LineFor line_for) {
    RemoteFileTransfer& window = remote_file_transfer_window();
    const Transfer wanted{
        .command = {.program = programs.at(static_cast<std::size_t>(window.copy_command.value())),
                    .directories = window.copy_mode.value() == 1},
        .account = {.user = name_in_field(window.user_name.text()),
                    .host = name_in_field(window.host_name.text())},
        .remote = remote.text()};
    if (wanted.account.host.empty()) {
        return "Host name not specified";
    }
    if (const std::string_view fault = copy_fault(wanted.account); !fault.empty()) {
        return Message(fault);
    }
    if (wanted.remote.empty()) {
        return Message(no_remote);
    }
    return walk_selection(window, {.none = "No files selected", .illegal = "Illegal file"},
                          [wanted, line_for](const std::vector<WalkedNode>& nodes) {
                              return copy_each(wanted, nodes, line_for);
                          });
}

void fill_account() {
    RemoteFileTransfer& window = remote_file_transfer_window();
    const Account account = listed_account(window.host.value());
    window.host_name.set_text(account.host);
    window.user_name.set_text(account.user);
}

}  // namespace

/// A user's name that was loaded stays until a host is chosen.
Message remote_file_transfer() {
    RemoteFileTransfer& window = remote_file_transfer_window();
    if (window.host_name.text().empty() && window.user_name.text().empty()) {
        fill_account();
    }
    window.set_left_footer("");
    window.open();
    return {};
}

Message RemoteFileTransferHost() {
    fill_account();
    return {};
}

Message RemoteFIleTransferCopyToHost() {
    return transfer(remote_file_transfer_window().destination_directory,
                    "Destination directory name not specified",
                    [](const Transfer& transfer, const std::string& local) {
                        return copy_to_host(transfer.command, local, transfer.account, transfer.remote);
                    });
}

Message RemoteFIleTransferCopyfromHost() {
    return transfer(remote_file_transfer_window().source_files, "Source file name not specified",
                    [](const Transfer& transfer, const std::string& local) {
                        return copy_from_host(transfer.command, transfer.account, transfer.remote, local);
                    });
}
