// SPDX-License-Identifier: MIT
#include "shell/shown_command.h"

#include "ui/default_settings.h"
#include "ui/main_window.h"

namespace {

template <typename Function>
auto with_prompt_settings(Function function) {
    const DefaultSettings& settings = default_settings();
    const std::string prompt = settings.prompt.text();
    const std::string delimiter = settings.prompt_ending_delimiter.text();
    return function(PromptSettings{.look_for_delimiter = settings.look_for_ending_delimiter.value(),
                                   .prompt = prompt,
                                   .delimiter = delimiter});
}

}  // namespace

CurrentCommand command_on(const TerminalPane::CurrentLine& line) {
    return with_prompt_settings(
        [&](const PromptSettings& settings) { return find_command(line.before + line.behind, settings); });
}

std::optional<std::string> text_before_command(const TerminalPane::CurrentLine& line,
                                               std::string_view command) {
    return with_prompt_settings([&](const PromptSettings& settings) {
        return text_before_command(line.before + line.behind, settings, command);
    });
}

bool is_command_half_typed() {
    const TerminalPane& terminal = main_window().termpane;
    const std::optional<pid_t> typed_to = terminal.typed_to();
    if (!typed_to) {
        return false;
    }
    const std::optional<std::string> typed = terminal.typed_line();
    const TerminalPane::CurrentLine line = terminal.shown_line();
    if (!line.settled && typed && !typed->empty()) {
        return true;
    }
    const CommandProblem problem = command_on(line).problem;
    if (problem == CommandProblem::none || problem == CommandProblem::nothing_typed) {
        return problem == CommandProblem::none;
    }
    return *typed_to == terminal.use().group && typed != std::string();
}
