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

constexpr ShellFamily families[] = {ShellFamily::csh, ShellFamily::bash,  ShellFamily::ksh,
                                    ShellFamily::zsh, ShellFamily::other, ShellFamily::unknown};

using Word = std::optional<std::string>;

std::string as_path(const std::string& name) {
    return name.starts_with('-') || name.starts_with('+') ? "./" + name : name;
}

/// What is typed of a name: no line editor acts on it.
void check_bytes(std::string_view text, const Shell& shell) {
    require(!has_control_characters(text), "a control character is typed");
    require(shell.family == ShellFamily::other || text.find('!') == text.npos, "a history mark is typed");
    const bool reads_utf8 =
        shell.utf8 && shell.family != ShellFamily::ksh && shell.family != ShellFamily::unknown;
    require(reads_utf8 ? is_typed_utf8(text) : is_typed_ascii(text),
            "a byte that the editor reads its own way");
}

/// A word that is typed: read back it is the name.
void check_typed(const Word& word, const std::string& name, const Shell& shell) {
    if (!word) {
        return;
    }
    check_bytes(*word, shell);
    require(read_word(*word) == name, "the shell reads another name");
    require(shell.family != ShellFamily::unknown || read_word(*word) == *word || *word == '"' + name + '"',
            "an unknown shell reads quotes");
    require(shell.family != ShellFamily::csh || word->find("\\'") == word->npos ||
                name.find('\\') == name.npos || word->starts_with("$'"),
            "a backslash before a quote of csh");
}

/// A name that is put into a user's command is itself there and leaves his quotes as they are. "$'" is left
/// out: not all shells read it the same.
void check_behind(std::string_view before, const std::string& name, const Shell& shell) {
    const Word word = operand_behind(before, name, shell);
    if (!word || before.find("$'") != std::string_view::npos) {
        return;
    }
    check_bytes(*word, shell);
    if (*word == name || *word == as_path(name)) {
        if (read_word(*word) == *word) {
            return;  // harmless in every place
        }
    }
    const Quotes quotes = quotes_behind(before);
    require(!quotes.escaped, "something takes the first character of an operand");
    const std::string quote(quotes.open == 0 ? 0 : 1, quotes.open);
    const Word read = read_word(quote + *word + quote);
    require(read == name || read == as_path(name), "an operand is another name");
    require(quotes_behind(std::string(before) + *word).open == quotes.open, "an operand changes the quotes");
    const std::size_t live = before.find_first_of("`'\\");
    require(live == std::string_view::npos || before[live] != '`', "an operand among backquotes");
}

/// Whatever stands between, a command that evaluates its operands gets harmless names only.
void check_evaluated(std::string_view before, const std::string& name, const Shell& shell) {
    if (before.find_first_of(";|&\n") != std::string_view::npos) {
        return;
    }
    for (const char* command : {"eval ", "/bin/sh -c '", "ssh host \""}) {
        const Word word = operand_behind(command + std::string(before), name, shell);
        require(!word || read_word(*word) == *word, "a name is evaluated");
    }
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
    const std::string path = as_path(name);
    for (const ShellFamily family : families) {
        for (const Shell shell : {Shell{family, true}, Shell{family, false}}) {
            check_typed(shell_text(name, shell), name, shell);
            check_typed(shell_word(name, shell), path, shell);
            check_typed(double_quoted_word(name, shell), path, shell);
            check_typed(escaped_word(name, shell), path, shell);
            check_behind(before, name, shell);
            check_evaluated(before, name, shell);
        }
    }
    check_hook("csh", name);
    check_hook("bash", name);
    require(read_word(script_word(name, ShellFamily::other)) == path, "sh reads another name");
    require(read_word(script_double_quoted(name, ShellFamily::other)) == path,
            "sh reads another name in quotes");
    require(read_word(script_text(name, ShellFamily::other)) == name, "sh reads another text");
    require(read_word("'" + inside_single_quotes(name) + "'") == name, "quotes do not hold");
    return 0;
}
