// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// The command that prints a file: the user's, with "$PATH_NAME" replaced by the path and "$FILE_NAME" by the
/// name, each once; where the user has none, the usual one.
std::string print_command(std::string_view users_command, std::string_view path);
