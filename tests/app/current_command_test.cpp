// SPDX-License-Identifier: MIT
#include "app/current_command.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    std::string_view line;
    PromptSettings settings;
    CommandProblem problem;
    std::string_view command = {};
};

constexpr PromptSettings by_prompt(std::string_view prompt) { return {.prompt = prompt}; }
constexpr PromptSettings by_delimiter(std::string_view delimiter) {
    return {.look_for_delimiter = true, .prompt = "unused", .delimiter = delimiter};
}

constexpr Case cases[] = {
    {"Prompt", "host% ls -l", by_prompt("host%"), CommandProblem::none, "ls -l"},
    {"PromptOnly", "host% ", by_prompt("host%"), CommandProblem::nothing_typed},
    {"PromptWithoutBlank", "host%", by_prompt("host%"), CommandProblem::nothing_typed},
    {"AnotherPrompt", "other% ls", by_prompt("host%"), CommandProblem::prompt_not_found},
    {"NoPromptSaved", "", by_prompt(""), CommandProblem::no_prompt_saved},
    {"Delimiter", "[~/src]> make", by_delimiter(">"), CommandProblem::none, "make"},
    {"FirstDelimiter", "a> b > c", by_delimiter(">"), CommandProblem::none, "b > c"},
    {"LongDelimiter", "user \u279c\u279c caf\u00e9", by_delimiter("\u279c\u279c"), CommandProblem::none,
     "caf\u00e9"},
    {"BlanksBelongToTheCommand", "$  ls ", by_delimiter("$"), CommandProblem::none, " ls "},
    {"DelimiterMissing", "make", by_delimiter(">"), CommandProblem::delimiter_not_found},
    {"NoDelimiterSet", "x", by_delimiter(""), CommandProblem::no_delimiter_set},
    {"EmptyLine", "", by_delimiter(">"), CommandProblem::empty_line},
    {"EmptyLineByPrompt", "", by_prompt("host%"), CommandProblem::empty_line},
};

class FindCommand : public testing::TestWithParam<Case> {};

TEST_P(FindCommand, BehindThePrompt) {
    const CurrentCommand found = find_command(GetParam().line, GetParam().settings);
    EXPECT_EQ(found.problem, GetParam().problem);
    EXPECT_EQ(found.text, GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Lines, FindCommand, testing::ValuesIn(cases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
