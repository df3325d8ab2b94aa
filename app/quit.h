// SPDX-License-Identifier: MIT
#pragma once

/// What the tool does before it ends, however it was asked to: removes its own and stale status files and the
/// mail's message file, stops its timers, saves the history where that is wanted, discards the text panes.
void clean_up();
