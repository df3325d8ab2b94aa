// SPDX-License-Identifier: MIT
#include "app/prompt_hook.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* status_path = "/home/u/.orvik-status0";

const std::string csh_on =
    R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$prompt" "$cwd" "$HOST" "$USER" "$CLEARCASE_ROOT" >! /home/u/.orvik-status0')";
const std::string csh_off =
    R"(alias precmd 'printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$prompt" "$cwd" "$HOST" "$USER"  >! /home/u/.orvik-status0')";
const std::string bash_on =
    R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:%s\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" "$CLEARCASE_ROOT" > /home/u/.orvik-status0')";
const std::string bash_off =
    R"(PROMPT_COMMAND='printf "P:%s\nC:%s\nH:%s\nU:%s\nV:Not_used\n" "$PS1" "$PWD" "$HOSTNAME" "$USER" > /home/u/.orvik-status0')";

struct Case {
    const char* shell;
    ClearCaseUsage usage;
    std::vector<PromptHook> expected;
};

TEST(PromptHook, IsChosenByTheShellsName) {
    const PromptHook for_csh[] = {{HookKind::csh, csh_off}, {HookKind::csh, csh_on}};
    const PromptHook for_bash[] = {{HookKind::bash, bash_off}, {HookKind::bash, bash_on}};
    const Case cases[] = {
        {"/bin/csh", ClearCaseUsage::off, {for_csh[0]}},
        {"/bin/tcsh", ClearCaseUsage::on, {for_csh[1]}},
        {"/bin/bash", ClearCaseUsage::off, {for_bash[0]}},
        {"/bin/ksh93", ClearCaseUsage::on, {for_bash[1]}},
        {"/bin/ksh", ClearCaseUsage::off, {for_bash[0]}},
        {"/bin/zsh", ClearCaseUsage::off, {}},
        {"/bin/sh", ClearCaseUsage::on, {}},
        {"/opt/bash/csh", ClearCaseUsage::off, {for_csh[0], for_bash[0]}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(prompt_hooks(c.shell, c.usage, status_path), c.expected) << c.shell;
    }
}

TEST(PromptHook, QuotesAStatusPathThatTheShellWouldSplit) {
    const auto hooks = prompt_hooks("/bin/bash", ClearCaseUsage::off, "/home/a b/.orvik-status0");
    ASSERT_EQ(hooks.size(), 1U);
    EXPECT_TRUE(hooks[0].text.ends_with(R"( > '\''/home/a b/.orvik-status0'\''')")) << hooks[0].text;
}

TEST(PromptHook, IsNotMadeWithoutAStatusFile) {
    EXPECT_EQ(prompt_hooks("/bin/bash", ClearCaseUsage::off, ""), std::vector<PromptHook>());
}

}  // namespace
