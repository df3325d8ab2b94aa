// SPDX-License-Identifier: MIT
// Commands cut out of the terminal's line.
#include "app/typed_command.h"

#include "shell/door.h"
#include "ui/main_window.h"

#include <array>

namespace {

struct ProblemText {
    CommandProblem problem;
    std::string_view for_return_key;  ///< and for the "Command Window"
    std::string_view for_move_button;
};

constexpr std::array problem_texts{
    ProblemText{CommandProblem::no_prompt_saved, "No prompt saved", "No prompter saved"},
    ProblemText{CommandProblem::no_delimiter_set, "No delimiter specified", "No delimiter specified"},
    ProblemText{CommandProblem::empty_line, "Command not saved", "Command not saved"},
    ProblemText{CommandProblem::prompt_not_found, "No prompt found", "No prompt found"},
    ProblemText{CommandProblem::delimiter_not_found, "No delimiter found", "No delimiter found"},
    ProblemText{CommandProblem::nothing_typed, "No command found", "No command"},
};

}  // namespace

Message problem_message(CommandProblem problem, CommandAsker asker) {
    for (const ProblemText& known : problem_texts) {
        if (known.problem == problem) {
            return Message(asker == CommandAsker::move_button ? known.for_move_button : known.for_return_key);
        }
    }
    return {};
}

TakenCommand take_typed_command(CommandAsker asker) {
    TerminalPane& terminal = main_window().termpane;
    if (terminal.use().full_screen || !is_shell(waiting_lines().reader())) {  // another program's text
        return {.refusal = "Couldn't get full line"};
    }
    const TerminalPane::CurrentLine line = terminal.current_line();
    CurrentCommand command = command_on(line);
    if (command.problem != CommandProblem::none) {
        return {.refusal = problem_message(command.problem, asker)};
    }
    if (!line.behind.empty() || !line.settled) {
        type_control('E');  // line editors erase only what is before the insertion point
    }
    type_control('U');
    return {.text = std::move(command.text)};
}
