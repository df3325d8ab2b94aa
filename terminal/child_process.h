// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

namespace terminal {

/// fork(2) with all signals blocked, so that no handler of ours runs in the child before it calls
/// `reset_signals`. In the child they stay blocked until then.
pid_t fork_with_signals_blocked();
/// No open descriptor has this number or a higher one. Asked before the fork.
int descriptor_limit();

// For the child, until it executes its program. Only what POSIX calls async-signal-safe may be called there:
// another thread may have held any lock when the process was forked.

/// All signals as a new program expects them: standard action, none blocked.
void reset_signals();
/// Closes all descriptors from `first` on.
void close_descriptors_from(unsigned first, int limit);

}  // namespace terminal
