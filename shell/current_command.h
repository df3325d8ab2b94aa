// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Cutting the command out of a shell's line, behind its prompt.

/// How the prompt is told from the command.
struct PromptSettings {
    bool look_for_delimiter = false;
    std::string_view prompt;     ///< the line begins with it; used when no delimiter is looked for
    std::string_view delimiter;  ///< the prompt ends with it
};

enum class CommandProblem : std::uint8_t {
    none,
    no_prompt_saved,   ///< the prompt is needed and not known
    no_delimiter_set,  ///< the delimiter is needed and not known
    empty_line,
    prompt_not_found,     ///< the line does not begin with the prompt
    delimiter_not_found,  ///< the line does not hold the delimiter
    nothing_typed,        ///< the line ends with the prompt
};

struct CurrentCommand {
    CommandProblem problem = CommandProblem::none;
    std::string text;
};

/// What follows the prompt, and the one character behind it, on a line.
CurrentCommand find_command(std::string_view line, const PromptSettings& settings);

/// What stands between the prompt, with the one character behind it, and this command at the end of a line:
/// usually nothing. No text where there is no prompt before the command. What stands before the prompt may be
/// anything: a shell prompts behind what was typed ahead of its prompt.
std::optional<std::string> text_before_command(std::string_view line, const PromptSettings& settings,
                                               std::string_view command);
