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

}  // namespace
