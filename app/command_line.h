// SPDX-License-Identifier: MIT
#pragma once

#include "app/typed_command.h"

/// Takes the command out of the shell's line: into the "Command Window" when "Open Long Command Window" is
/// on, else into "Command:". Or returns why there is none.
[[nodiscard]] Message move_typed_command(CommandAsker asker);

/// Puts "Last Command:" into "Command:".
[[nodiscard]] Message recall_last_command();
