// SPDX-License-Identifier: MIT
#pragma once

#include "shell/command_line.h"

#include <string>
#include <string_view>

/// A user's account on another host, as fields name it.
struct Account {
    std::string user;  ///< empty for the same name as here
    std::string host;
};

/// The name in a field: without comments ("/* */", "//") and the blanks around.
std::string name_in_field(std::string_view text);

/// Why an account cannot be given to a program; empty when it can. A name holds only the characters that
/// such names are made of and cannot be taken for an option.
std::string_view account_fault(const Account& account);

/// The same for one that files are copied to or from: a ":" in its user's name would end the host's.
std::string_view copy_fault(const Account& account);

/// How files are copied.
struct CopyCommand {
    Words program;  ///< rcp or scp
    bool directories = false;
};

/// The command lines that copy between a file here and a path there, each of which is one word of the shell.
/// A local path is absolute: another one that holds a ":" would be taken for a host's.
CommandLine copy_to_host(const CopyCommand& command, const std::string& local, const Account& account,
                         const std::string& remote);
CommandLine copy_from_host(const CopyCommand& command, const Account& account, const std::string& remote,
                           const std::string& local);
