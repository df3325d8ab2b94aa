// SPDX-License-Identifier: MIT
#include "shell/current_command.h"

#include <gtest/gtest.h>

namespace {

TEST(CurrentCommand, IsFoundAtTheEndOfWhatWasTypedAhead) {
    const PromptSettings prompt{.prompt = "host%"};
    const PromptSettings delimiter{.look_for_delimiter = true, .delimiter = ">"};
    const struct {
        PromptSettings settings;
        std::string line;
        std::string command;
        std::optional<std::string> before;
    } cases[] = {
        {prompt, "host% ls", "ls", ""},
        {prompt, "lshost% ls", "ls", ""},
        {prompt, "host% sls", "ls", "s"},
        {prompt, "host%ls", "ls", std::nullopt},
        {prompt, "other ls", "ls", std::nullopt},
        {prompt, "host% ls -l", "ls", std::nullopt},
        {delimiter, "a>[~]> make >x", "make >x", ""},
        {delimiter, "make", "make", std::nullopt},
        {{.look_for_delimiter = true}, "> make", "make", std::nullopt},
    };
    for (const auto& [settings, line, command, before] : cases) {
        EXPECT_EQ(text_before_command(line, settings, command), before) << line;
    }
}

}  // namespace
