// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "fuzz/shell_word.h"
#include "shell/operands.h"
#include "shell/prompt_hook.h"
#include "shell/quoting.h"

// A file name as one word of a command line. Up to the first NUL the input is what its user has typed before
// it.

namespace {

constexpr ShellFamily families[] = {ShellFamily::csh, ShellFamily::bash, ShellFamily::zsh,
                                    ShellFamily::other};

using Word = std::optional<std::string>;

/// A word that is typed: read back it is the name, and no line editor acts on it.
void check_typed(const Word& word, const std::string& name, ShellFamily family) {
    if (!word) {
        return;
    }
    require(!has_control_characters(*word), "a control character is typed");
    require(family == ShellFamily::other || word->find('!') == std::string::npos, "a history mark is typed");
    require(read_word(*word) == name, "the shell reads another name");
}

/// A name that is put into a user's command leaves its quotes as they are. "$'" is left out: not all shells
/// read it the same.
void check_behind(std::string_view before, std::string_view name, ShellFamily family) {
    const Word word = operand_behind(before, name, {family, true});
    if (!word || before.find("$'") != std::string_view::npos) {
        return;
    }
    const Quotes quotes = quotes_behind(before);
    require(word == name || !quotes.escaped, "something takes the first character of an operand");
    const std::size_t live = before.find_first_of("`'\\");
    const bool substitution = live != std::string_view::npos && before[live] == '`';
    require(word == name || !substitution, "an operand among backquotes");
    require(quotes_behind(std::string(before) + *word).open == quotes.open, "an operand changes the quotes");
    require(quotes.open == 0 || word->find_first_of("$`\\!") == std::string::npos,
            "an operand is live in quotes");
}

/// The prompt hook is a word itself: a command that ends with the path as a word.
void check_hook(const char* shell, const std::string& path) {
    for (const PromptHook& hook :
         prompt_hooks(shell, {shell_family(shell), true}, ClearCaseUsage::off, path)) {
        const Word command = read_word(std::string_view(hook.text).substr(hook.text.find('\'')));
        require(command && command->ends_with(' ' + *shell_word(path, {shell_family(shell), true})),
                "a broken prompt hook");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = as_text(data, size);
    const std::string_view before = take_part(rest);
    const std::string name(take_part(rest));
    const std::string path = (name.starts_with('-') || name.starts_with('+')) ? "./" + name : name;
    for (const ShellFamily family : families) {
        check_typed(shell_word(name, {family, true}), path, family);
        check_typed(double_quoted_word(name, {family, true}), path, family);
        check_typed(escaped_word(name, {family, true}), path, family);
        check_behind(before, name, family);
    }
    check_hook("csh", name);
    check_hook("bash", name);
    require(read_word(script_word(name, ShellFamily::other)) == path, "sh reads another name");
    require(read_word(script_text(name, ShellFamily::other)) == name, "sh reads another text");
    require(read_word("'" + inside_single_quotes(name) + "'") == name, "quotes do not hold");
    return 0;
}
