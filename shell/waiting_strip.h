// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Begins to look after the command lines that wait for the shell of the main window's terminal, which is yet
/// to be started, and to show them in the strip above it. `restarted` is called when the user has started
/// another shell.
void watch_for_shell(std::function<void()> restarted);
