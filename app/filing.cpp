// SPDX-License-Identifier: MIT
// Filing the commands that are typed into the terminal.
//
// The keys may be ahead of what the terminal shows: the echo takes its time, and while a command runs the
// next ones can be typed already. So a command is read when the shell has answered Return by leaving the
// line: then it stands there as the shell has taken it. What was typed ahead of a prompt must in addition be
// what the keys tell, since the lines that come till then are anybody's.
#include "app/filing.h"

#include "app/typed_command.h"
#include "settings/history.h"
#include "shell/door.h"
#include "ui/command_history_setup.h"
#include "ui/default_settings.h"
#include "ui/main_window.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace {

/// A command whose Return has been pressed.
struct Awaited {
    pid_t shell;
    bool at_prompt;     ///< Return was pressed on the prompt's line
    std::string typed;  ///< what the keys tell; empty where they do not
};

/// More are not typed ahead.
constexpr std::size_t most_awaited = 1000;

std::deque<Awaited> awaited;

/// A line that was left with nothing but a prompt. The terminal's own echo of a Return may come between the
/// prompt and the line editor: the command that the shell takes then stands on the next line.
std::string bare_prompt;

void file(const std::string& command) {
    record_command(command);
    main_window().set_left_footer("");
    default_settings().last_command.set_text(command);
}

/// Whether a text before a command may be what the terminal itself has echoed of the keys, before the shell's
/// line editor was there to read them and echo them again: "cecho" is shown where the keys tell "echo".
bool is_early_echo(std::string_view text) {
    std::string keys;
    for (const Awaited& command : awaited) {
        keys += command.typed;
    }
    keys += main_window().termpane.typed_line().value_or(std::string());
    return keys.find(text) != std::string::npos;
}

/// The shown command, or what the keys tell where an early echo stands before it.
const std::string& without_early_echo(const std::string& shown, const std::string& typed) {
    const bool ends_so = !typed.empty() && shown.ends_with(typed);
    return ends_so && is_early_echo(shown.substr(0, shown.size() - typed.size())) ? typed : shown;
}

/// Whether a line shows what the keys tell behind the prompt.
bool shows(const TerminalPane::CurrentLine& line, const std::string& typed) {
    const std::optional<std::string> before = text_before_command(line, typed);
    return before && is_early_echo(*before);
}

/// The line at whose end Return was pressed is left: it holds the command, or tells that there is none.
void file_from_prompt(const TerminalPane::CurrentLine& line) {
    const CurrentCommand command = command_on(line);
    if (command.problem == CommandProblem::none) {
        file(without_early_echo(command.text, awaited.front().typed));
    } else {
        main_window().set_left_footer(problem_message(command.problem, CommandAsker::return_key));
    }
    awaited.pop_front();
}

/// Files the command that a line shows of those typed ahead. Those before it were another program's input.
void file_typed_ahead(TerminalPane::CurrentLine line) {
    line.before.insert(0, std::exchange(bare_prompt, {}));
    const auto shown =
        std::ranges::find_if(awaited, [&](const Awaited& command) { return shows(line, command.typed); });
    if (shown != awaited.end()) {
        file(shown->typed);
        awaited.erase(awaited.begin(), shown + 1);
    } else if (shows(line, "")) {
        bare_prompt = line.before + line.behind;
    }
}

void line_left(const TerminalPane::CurrentLine& line) {
    TerminalPane& terminal = main_window().termpane;
    if (terminal.use().full_screen) {
        return;
    }
    std::erase_if(awaited, [&](const Awaited& command) { return command.shell != terminal.child(); });
    if (!awaited.empty() && awaited.front().at_prompt) {
        file_from_prompt(line);
    } else {
        file_typed_ahead(line);
    }
    if (awaited.empty()) {
        bare_prompt.clear();
        terminal.watch_lines({});
    }
}

/// Whether the shell has come to read the command whose Return is pressed: it shows what was typed behind its
/// prompt, or has answered the keys where they do not tell what that is.
bool is_at_prompt(const CurrentCommand& shown, const std::optional<std::string>& typed, bool settled) {
    if (shown.problem != CommandProblem::none && shown.problem != CommandProblem::nothing_typed) {
        return false;
    }
    if (awaited.empty()) {
        return true;
    }
    return !awaited.front().at_prompt && (typed ? shown.text == *typed : settled);
}

}  // namespace

void file_typed_command() {
    constexpr int history_on = 0;
    TerminalPane& terminal = main_window().termpane;
    const bool shell_reads = is_shell(waiting_lines().reader());
    // What is typed to a program that takes every key itself cannot come to be a command.
    const bool may_become_command = shell_reads || terminal.use().reads_lines;
    if (command_history_setup().history_list.value() != history_on || terminal.child() < 0 ||
        !may_become_command) {
        return;
    }
    const TerminalPane::CurrentLine line = terminal.shown_line();
    const CurrentCommand shown = command_on(line);
    const std::optional<std::string> typed = terminal.typed_line();
    const bool at_prompt = shell_reads && is_at_prompt(shown, typed, line.settled);
    if (at_prompt) {
        awaited.clear();  // was another program's input
    } else if (shell_reads && shown.problem != CommandProblem::none) {
        main_window().set_left_footer(problem_message(shown.problem, CommandAsker::return_key));
    }
    if ((at_prompt || (typed && !typed->empty())) && awaited.size() < most_awaited) {
        awaited.push_back(
            {.shell = terminal.child(), .at_prompt = at_prompt, .typed = typed.value_or(std::string())});
        terminal.watch_lines(line_left);
    }
}
