// SPDX-License-Identifier: MIT
#pragma once

#include "shell/prompt_hook.h"

#include <vector>

/// Shows the prompt hooks of the user's shell in "Precmd:" and, while "Display" of "Status Display" is On,
/// types them. Returns those that were typed.
std::vector<PromptHook> type_prompt_hooks();
