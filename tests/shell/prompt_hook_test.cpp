// SPDX-License-Identifier: MIT
#include "shell/prompt_hook.h"

#include <gtest/gtest.h>

namespace {

TEST(PromptHook, IsChosenByTheShellsName) {
    const std::string path = "/home/u/.orvik-status0";
    const PromptHook csh_on{
        HookKind::csh,
        R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$prompt" "$cwd" "$HOST" "$USER" "$CLEARCASE_ROOT" >! /home/u/.orvik-status0')"};
    const PromptHook csh_off{
        HookKind::csh,
        R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$prompt" "$cwd" "$HOST" "$USER"  >! /home/u/.orvik-status0')"};
    const PromptHook bash_on{
        HookKind::bash,
        R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" "$CLEARCASE_ROOT" > /home/u/.orvik-status0')"};
    const PromptHook bash_off{
        HookKind::bash,
        R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > /home/u/.orvik-status0')"};
    const PromptHook quoted{
        HookKind::bash,
        R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > '\''/a b'\''')"};
    const struct {
        const char* shell;
        ClearCaseUsage usage;
        std::string status_path;
        std::vector<PromptHook> expected;
    } cases[] = {
        {"/bin/csh", ClearCaseUsage::off, path, {csh_off}},
        {"/bin/tcsh", ClearCaseUsage::on, path, {csh_on}},
        {"/bin/bash", ClearCaseUsage::off, path, {bash_off}},
        {"/bin/ksh93", ClearCaseUsage::on, path, {bash_on}},
        {"/bin/zsh", ClearCaseUsage::off, path, {}},
        {"/bin/sh", ClearCaseUsage::on, path, {}},
        {"/opt/bash/csh", ClearCaseUsage::off, path, {csh_off, bash_off}},
        {"/bin/bash", ClearCaseUsage::off, "/a b", {quoted}},
        {"/bin/bash", ClearCaseUsage::off, "", {}},
    };
    for (const auto& [shell, usage, status_path, expected] : cases) {
        EXPECT_EQ(prompt_hooks(shell, {shell_family(shell), true}, usage, status_path), expected)
            << shell << ' ' << status_path;
    }
}

TEST(PromptHook, IsAddedToTheUsersOwn) {
    const struct {
        const char* shell;
        ClearCaseUsage usage;
        std::vector<std::string> expected;
        bool runs;
    } cases[] = {
        {"/bin/tcsh",
         ClearCaseUsage::on,
         {R"(alias orvik_report 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$prompt" "$cwd" "$HOST" "$USER" "$CLEARCASE_ROOT" >! '\''/a b'\'''; alias precmd | grep -q orvik_report || alias precmd "`alias precmd`; orvik_report")"},
         true},
        {"/bin/bash",
         ClearCaseUsage::off,
         {R"(orvik_report() { printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" >| '/a b'; }; [[ ${PROMPT_COMMAND-} == *orvik_report* ]] || PROMPT_COMMAND+=$'\norvik_report')"},
         true},
        {"/bin/zsh",
         ClearCaseUsage::off,
         {R"(orvik_report() { printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOST" "$USER" >| '/a b'; }; precmd_functions=(${precmd_functions:#orvik_report} orvik_report))"},
         true},
        {"/bin/ksh93",
         ClearCaseUsage::off,
         {R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > '\''/a b'\''')"},
         false},
        {"/bin/fish", ClearCaseUsage::off, {}, false},
    };
    for (const auto& [shell, usage, expected, runs] : cases) {
        std::vector<std::string> texts;
        for (const PromptHook& hook :
             prompt_hooks(shell, {shell_family(shell), true}, usage, "/a b", HookStyle::add)) {
            texts.push_back(hook.text);
        }
        EXPECT_EQ(texts, expected);
        EXPECT_EQ(runs_prompt_hook(shell, HookStyle::add), runs) << shell;
    }
    EXPECT_TRUE(runs_prompt_hook("/bin/bash", HookStyle::replace));
    EXPECT_FALSE(runs_prompt_hook("/bin/zsh", HookStyle::replace));
}

}  // namespace
