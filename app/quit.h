// SPDX-License-Identifier: MIT
#pragma once

/// What the tool does before it ends, however it was asked to: removes its status file, stops its timers,
/// saves the history where that is wanted. When its user has chosen "Quit", also discards the text panes and
/// removes the status files 0 to 20, which others may have left, and the mail's message file.
void clean_up();
