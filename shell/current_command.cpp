// SPDX-License-Identifier: MIT
#include "shell/current_command.h"

namespace {

CurrentCommand behind(std::string_view line, std::size_t prompt_end) {
    const std::size_t begin = prompt_end + 1;  // the blank behind the prompt
    if (begin >= line.size()) {
        return {.problem = CommandProblem::nothing_typed};
    }
    return {.text = std::string(line.substr(begin))};
}

}  // namespace

CurrentCommand find_command(std::string_view line, const PromptSettings& settings) {
    if (settings.look_for_delimiter ? settings.delimiter.empty() : settings.prompt.empty()) {
        return {.problem = settings.look_for_delimiter ? CommandProblem::no_delimiter_set
                                                       : CommandProblem::no_prompt_saved};
    }
    if (line.empty()) {
        return {.problem = CommandProblem::empty_line};
    }
    if (!settings.look_for_delimiter) {
        return line.starts_with(settings.prompt)
                   ? behind(line, settings.prompt.size())
                   : CurrentCommand{.problem = CommandProblem::prompt_not_found};
    }
    const std::size_t found = line.find(settings.delimiter);
    return found != std::string_view::npos ? behind(line, found + settings.delimiter.size())
                                           : CurrentCommand{.problem = CommandProblem::delimiter_not_found};
}

std::optional<std::string> text_before_command(std::string_view line, const PromptSettings& settings,
                                               std::string_view command) {
    const std::string_view mark = settings.look_for_delimiter ? settings.delimiter : settings.prompt;
    if (mark.empty() || !line.ends_with(command)) {
        return std::nullopt;
    }
    line.remove_suffix(command.size());
    const std::size_t prompt = line.rfind(mark);
    const std::size_t behind_blank = prompt + mark.size() + 1;
    if (prompt == std::string_view::npos || behind_blank > line.size()) {
        return std::nullopt;
    }
    return std::string(line.substr(behind_blank));
}
