// SPDX-License-Identifier: MIT
#include "shell/prompt_hook.h"

#include "shell/quoting.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// How a hook is put into a shell of a kind: the report, and the status path, stand between three parts.
struct HookParts {
    HookStyle style;
    HookKind kind;
    std::string_view before_report;
    std::string_view before_path;  ///< how the report is written into the file
    std::string_view behind_path;
    bool in_single_quotes;  ///< the path stands there
};

/// What is added comes last, so that the user's own sees the exit status of the last command. Typed a second
/// time it changes nothing. "noclobber" does not keep it from writing.
constexpr std::array hook_table{
    HookParts{HookStyle::replace, HookKind::csh, "alias precmd '", " >! ", "'", true},
    HookParts{HookStyle::replace, HookKind::bash, "PROMPT_COMMAND='", " > ", "'", true},
    HookParts{HookStyle::add, HookKind::csh, "alias orvik_report '", " >! ",
              R"('; alias precmd | grep -q orvik_report || alias precmd "`alias precmd`; orvik_report")",
              true},
    HookParts{HookStyle::add, HookKind::bash, "orvik_report() { ", " >| ",
              R"(; }; [[ ${PROMPT_COMMAND-} == *orvik_report* ]] || PROMPT_COMMAND+=$'\norvik_report')",
              false},
    HookParts{HookStyle::add, HookKind::zsh, "orvik_report() { ", " >| ",
              "; }; precmd_functions=(${precmd_functions:#orvik_report} orvik_report)", false},
};

/// The text that writes the five lines.
struct Report {
    HookKind kind;
    ClearCaseUsage usage;
    std::string_view text;
};

constexpr std::array reports{
    Report{HookKind::csh, ClearCaseUsage::on,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$prompt" "$cwd" "$HOST" "$USER" "$CLEARCASE_ROOT")"},
    Report{HookKind::csh, ClearCaseUsage::off,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$prompt" "$cwd" "$HOST" "$USER" )"},
    Report{HookKind::bash, ClearCaseUsage::on,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" "$CLEARCASE_ROOT")"},
    Report{HookKind::bash, ClearCaseUsage::off,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER")"},
    Report{HookKind::zsh, ClearCaseUsage::on,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOST" "$USER" "$CLEARCASE_ROOT")"},
    Report{HookKind::zsh, ClearCaseUsage::off,
           R"(printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOST" "$USER")"},
};

bool is_for(HookKind kind, std::string_view shell_name) {
    const auto named = [&](std::string_view part) { return shell_name.find(part) != std::string_view::npos; };
    switch (kind) {
        case HookKind::csh:
            return named("csh");
        case HookKind::bash:
            return named("bash") || named("ksh");
        case HookKind::zsh:
            return named("zsh");
    }
    return false;
}

/// A Korn shell has no hook that could be added to: it is given the other one.
HookStyle style_for(std::string_view shell_name, HookStyle style) {
    return shell_name.find("ksh") == std::string_view::npos ? style : HookStyle::replace;
}

std::string_view report_of(HookKind kind, ClearCaseUsage usage) {
    return std::ranges::find_if(
               reports, [&](const Report& report) { return report.kind == kind && report.usage == usage; })
        ->text;
}

}  // namespace

std::vector<PromptHook> prompt_hooks(std::string_view shell_name, const Shell& shell, ClearCaseUsage usage,
                                     std::string_view status_path, HookStyle style) {
    const std::optional<std::string> path = shell_word(status_path, shell);
    std::vector<PromptHook> hooks;
    for (const HookParts& parts : hook_table) {
        if (!path || parts.style != style_for(shell_name, style) || !is_for(parts.kind, shell_name)) {
            continue;
        }
        std::string text(parts.before_report);
        text.append(report_of(parts.kind, usage)).append(parts.before_path);
        text.append(parts.in_single_quotes ? inside_single_quotes(*path) : *path).append(parts.behind_path);
        hooks.push_back({parts.kind, std::move(text)});
    }
    return hooks;
}

bool runs_prompt_hook(std::string_view shell_name, HookStyle style) {
    return std::ranges::any_of(hook_table, [&](const HookParts& parts) {
        return parts.style == style_for(shell_name, style) && is_for(parts.kind, shell_name) &&
               shell_name.find("ksh") == std::string_view::npos;
    });
}
