// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The command for the system's shell that prints a file: the user's, with "$PATH_NAME" replaced by the path
/// and
/// "$FILE_NAME" by the name, each once; where the user has none, the usual one. What has been put in is a
/// name for the shell and is not searched for placeholders. Nothing for a name that it cannot be given there.
std::optional<std::string> print_command(std::string_view users_command, std::string_view path,
                                         std::string_view name);

/// What stands behind that command to run it in the background.
constexpr std::string_view print_ampersand(std::string_view users_command) {
    return users_command.empty() ? " &" : "&";
}
