// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Brings the program up, step by step in a fixed order: later steps read what earlier ones left in the
/// windows' controls. Returns when the main window is to be shown. A missing environment or display ends the
/// process with exit status 1 and one line on the standard error.
void start_up(std::vector<std::string> arguments);
