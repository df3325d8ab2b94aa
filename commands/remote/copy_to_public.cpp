// SPDX-License-Identifier: MIT
// "Copy to Public".
#include "commands/each_node.h"
#include "commands/notify.h"
#include "shell/process.h"
#include "shell/send.h"
#include "ui/copy_to_public_window.h"

#include <cerrno>
#include <cstring>

#include <fmt/format.h>

namespace {

constexpr mode_t for_everybody = 0666;
constexpr mode_t permissions = 07777;

CommandLine line_for(const WalkedNode& node, const std::string& user) {
    return CommandLine("cp").path(node.path).path(fmt::format("/home/{}/public/.", user));
}

Message copy(const WalkedNode& node, const std::string& user) {
    return send(line_for(node, user), Remember::last_command);
}

/// The other user is to read and change the copy, which gets the file's mode. A line that is refused leaves
/// that alone.
Message copy_for_everybody(const WalkedNode& node, const std::string& user) {
    Message refusal = line_for(node, user).typed_into(user_shell).refusal;
    if (!refusal.empty()) {
        return refusal;
    }
    if (chmod(node.path.c_str(), for_everybody) != 0) {
        return std::strerror(errno);
    }
    refusal = copy(node, user);
    if (!refusal.empty()) {
        (void)chmod(node.path.c_str(), node.glance.mode & permissions);
    }
    return refusal;
}

/// Whether a name is one directory's below /home.
bool is_user_name(const std::string& name) { return is_host_name(name) && name != "." && name != ".."; }

}  // namespace

Message copy_to_public() {
    copy_to_public_window().set_left_footer("");
    copy_to_public_window().open();
    return {};
}

Message CopyToPublicCopy() {
    const std::string other = copy_to_public_window().userid.text();
    const std::string user = other.empty() ? user_name : other;
    if (!is_user_name(user)) {
        return "Illegal user name";
    }
    return walk_selection(
        copy_to_public_window(), {.none = "No file selected", .illegal = "Illegal file"},
        [user, copy_one = other.empty() ? copy : copy_for_everybody](const std::vector<WalkedNode>& nodes) {
            return do_with_each(nodes, S_IFREG, "Not a regular file",
                                [&](const WalkedNode& node) { return copy_one(node, user); });
        });
}
