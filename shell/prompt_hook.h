// SPDX-License-Identifier: MIT
#pragma once

#include "shell/shell_family.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

enum class ClearCaseUsage : std::uint8_t { off, on };
enum class HookKind : std::uint8_t { csh, bash, zsh };

/// What becomes of a hook that the user has already: ours takes its place, or is added to it.
enum class HookStyle : std::uint8_t { replace, add };

/// A command that makes a shell write its state into the status file before every prompt. One line, without
/// its line feed.
struct PromptHook {
    HookKind kind;
    std::string text;
    bool operator==(const PromptHook&) const = default;
};

/// The hooks for a shell, chosen by its path: one when it holds "csh", one when it holds "bash" or "ksh", one
/// when it holds "zsh" and hooks are added, in that order; none for other shells. None either for a status
/// path that no quoting can bring into the shell.
std::vector<PromptHook> prompt_hooks(std::string_view shell_name, const Shell& shell, ClearCaseUsage usage,
                                     std::string_view status_path, HookStyle style = HookStyle::replace);

/// Whether a shell of that path reports by the hook that it is typed: Korn shells take theirs for a plain
/// variable.
[[nodiscard]] bool runs_prompt_hook(std::string_view shell_name, HookStyle style);
