// SPDX-License-Identifier: MIT
// "Remote copy": the list browser's file, or what is selected in the tree, copied to another host or from it.
#include "ui/remote_copy.h"

#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "browsers/tree/walk.h"
#include "browsers/window_work.h"
#include "commands/missing.h"
#include "commands/notify.h"
#include "commands/remote/account.h"
#include "shell/messages.h"
#include "shell/process.h"
#include "shell/send.h"
#include "ui/file_tree_browser.h"

#include <fmt/format.h>

namespace {

constexpr CopyCommand scp{.program = "scp", .directories = true};

/// What is on the other host, as the window's fields name it.
struct Remote {
    Account account;
    std::string path;
    std::string_view fault;  ///< why that cannot be copied to or from
};

Remote remote_in(const TextField& path, std::string_view no_path) {
    const RemoteCopy& window = remote_copy();
    Remote remote{.account = {.user = name_in_field(window.remote_user.text()),
                              .host = name_in_field(window.remote_host.text())},
                  .path = path.text()};
    if (remote.path.empty()) {
        remote.fault = no_path;
    } else if (remote.account.host.empty()) {
        remote.fault = "Remote host not specified";
    } else if (remote.account.user.empty()) {
        remote.fault = "Remote user not specified";
    } else {
        remote.fault = copy_fault(remote.account);
    }
    return remote;
}

Message send_shown(const CommandLine& line) {
    Message refusal = send(line);
    if (refusal.empty()) {
        report(fmt::format("{}\n", line.typed_into(user_shell).text));
        report_missing(scp.program.text());
    }
    return refusal;
}

/// Types the line that `line_for` gives, for each selected node.
template <typename LineFor>
Message copy_selection(std::string_view none, LineFor line_for) {
    return walk_selection(remote_copy(), {.none = none, .illegal = "Illegal file"},
                          [line_for](const std::vector<WalkedNode>& nodes) {
                              Message refusal;
                              for (auto node = nodes.begin(); node != nodes.end() && refusal.empty();
                                   ++node) {
                                  refusal = send_shown(line_for(node->path));
                              }
                              return refusal;
                          });
}

bool is_for_listed_file() { return remote_copy().side == RemoteCopy::Side::listed_file; }

}  // namespace

Message copy_file_remote() {
    return walk_selection(file_tree_browser(),
                          {.none = "No files selected",
                           .illegal = "Illegal file",
                           .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1; },
                                       "Specify one file to copy"}}},
                          [](const std::vector<WalkedNode>& /*nodes*/) -> Message {
                              remote_copy().open_for(RemoteCopy::Side::tree_selection);
                              return {};
                          });
}

Message Copy_to_remote_button() {
    constexpr std::string_view no_source = "No source file specified";
    const Remote remote = remote_in(remote_copy().remote_destination, "Remote directory not specified");
    if (!remote.fault.empty()) {
        return Message(remote.fault);
    }
    const auto line_for = [remote](const std::string& local) {
        return copy_to_host(scp, local, remote.account, remote.path);
    };
    if (!is_for_listed_file()) {
        return copy_selection(no_source, line_for);
    }
    const ListedFile file = listed_file({.directory = no_source, .name = no_source});
    return file ? send_shown(line_for(file.path)) : file.refusal;
}

Message Copy_from_remote_button() {
    constexpr std::string_view no_destination = "No destination file specified";
    const Remote remote = remote_in(remote_copy().remote_source, "Remote source not specified");
    if (!remote.fault.empty()) {
        return Message(remote.fault);
    }
    const auto line_for = [remote](const std::string& local) {
        return copy_from_host(scp, remote.account, remote.path, local);
    };
    if (!is_for_listed_file()) {
        return copy_selection(no_destination, line_for);
    }
    const ListedFile file = listed_file({.directory = no_destination, .name = no_destination});
    if (!file) {
        return file.refusal;
    }
    return work_for(
        remote_copy(), "Files examined",
        [path = file.path](Progress& /*progress*/) { return file_mode(path).has_value(); },
        [line_for, path = file.path](bool is_there) -> Message {
            return is_there ? send_shown(line_for(path)) : "Illegal destination file";
        });
}
