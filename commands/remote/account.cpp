// SPDX-License-Identifier: MIT
#include "commands/remote/account.h"

#include "commands/absolute_path.h"
#include "shell/text.h"

#include <fmt/format.h>

namespace {

/// "user@host:path". A host that is an address with colons in it stands in brackets.
std::string remote_operand(const Account& account, const std::string& path) {
    const bool brackets = account.host.find(':') != std::string::npos;
    return fmt::format("{}{}{}{}{}:{}", account.user, account.user.empty() ? "" : "@", brackets ? "[" : "",
                       account.host, brackets ? "]" : "", path);
}

CommandLine begin(const CopyCommand& command) {
    CommandLine line(command.program);
    if (command.directories) {
        line.word("-r");
    }
    return line;
}

}  // namespace

std::string name_in_field(std::string_view text) {
    return remove_leading_blanks(remove_trailing_spaces(remove_comments2(remove_comments1(text))));
}

std::string_view account_fault(const Account& account) {
    if (!is_host_name(account.host)) {
        return "Illegal host name";
    }
    return account.user.empty() || is_host_name(account.user) ? "" : "Illegal user name";
}

std::string_view copy_fault(const Account& account) {
    const std::string_view fault = account_fault(account);
    const bool ends_host = account.user.find(':') != std::string::npos;
    return fault.empty() && ends_host ? "Illegal user name" : fault;
}

CommandLine copy_to_host(const CopyCommand& command, const std::string& local, const Account& account,
                         const std::string& remote) {
    return begin(command).path(absolute_path(local)).text(remote_operand(account, remote));
}

CommandLine copy_from_host(const CopyCommand& command, const Account& account, const std::string& remote,
                           const std::string& local) {
    return begin(command).text(remote_operand(account, remote)).path(absolute_path(local));
}
