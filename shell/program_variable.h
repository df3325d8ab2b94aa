// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

/// What is said where a program is called by an environment variable of the tool's that names none: the shell
/// would run the program's operand itself. Empty for one that does.
[[nodiscard]] Message unset_program(const char* variable);
