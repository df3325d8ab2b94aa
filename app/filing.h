// SPDX-License-Identifier: MIT
#pragma once

/// To be called when Return is pressed in the terminal, before the shell gets the key: the command that it
/// ends goes into the history and into "Last Command:" when the shell has shown it and answers the key. The
/// main window's left footer tells where there is none.
void file_typed_command();
