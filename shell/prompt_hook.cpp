// SPDX-License-Identifier: MIT
#include "shell/prompt_hook.h"

#include "shell/quoting.h"

#include <array>
#include <optional>

namespace {

/// A hook is head + arguments + status path + "'".
struct HookParts {
    HookKind kind;
    ClearCaseUsage usage;
    std::string_view head;
    std::string_view arguments;
};

constexpr std::array hook_table{
    HookParts{HookKind::csh, ClearCaseUsage::on, R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n")",
              R"( "$prompt" "$cwd" "$HOST" "$USER" "$CLEARCASE_ROOT" >! )"},
    HookParts{HookKind::csh, ClearCaseUsage::off,
              R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n")",
              R"( "$prompt" "$cwd" "$HOST" "$USER"  >! )"},
    HookParts{HookKind::bash, ClearCaseUsage::on,
              R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n")",
              R"( "$PS1" "$PWD" "$HOSTNAME" "$USER" "$CLEARCASE_ROOT" > )"},
    HookParts{HookKind::bash, ClearCaseUsage::off,
              R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n")",
              R"( "$PS1" "$PWD" "$HOSTNAME" "$USER" > )"},
};

bool is_for(HookKind kind, std::string_view shell_name) {
    const auto named = [&](std::string_view part) { return shell_name.find(part) != std::string_view::npos; };
    return kind == HookKind::csh ? named("csh") : named("bash") || named("ksh");
}

}  // namespace

std::vector<PromptHook> prompt_hooks(std::string_view shell_name, const Shell& shell, ClearCaseUsage usage,
                                     std::string_view status_path) {
    const std::optional<std::string> path = shell_word(status_path, shell);
    std::vector<PromptHook> hooks;
    for (const HookParts& parts : hook_table) {
        if (!path || parts.usage != usage || !is_for(parts.kind, shell_name)) {
            continue;
        }
        std::string text(parts.head);
        text.append(parts.arguments).append(inside_single_quotes(*path)).append("'");
        hooks.push_back({parts.kind, std::move(text)});
    }
    return hooks;
}
