// SPDX-License-Identifier: MIT
#pragma once

#include "commands/clearcase/tool.h"
#include "toolkit/notify.h"

#include <cstdint>
#include <string>

class Frame;

/// What may be selected for a command.
enum class ClearCaseKind : std::uint8_t { files, directories, any };

/// A number of nodes, or this.
inline constexpr std::size_t any_number = 0;

/// Types a line for each node that is selected in the tree, the prefix with the node's path behind it, once
/// all of them are of that kind and so many. The last one is kept in "Last Command:". What is wrong with the
/// selection stands in the window's left footer; nothing is typed then.
Message ExecuteClearCaseCommand(Frame& window, const ToolLine& prefix, ClearCaseKind kind, std::size_t count);

/// The same for any number, with only the output lines typed that hold a user's name; lines in front of a
/// node that is wrong stay typed.
Message ExecuteClearCaseCommandUser(Frame& window, const ToolLine& prefix, ClearCaseKind kind,
                                    const std::string& user);
