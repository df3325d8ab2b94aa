// SPDX-License-Identifier: MIT
#include "shell/operands.h"

#include "shell/expand_path.h"
#include "shell/line_head.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

OperandSource& tree_name_source() {
    static OperandSource source;
    return source;
}

/// A text for where a quote has just been opened: as it is where the quote holds it; else the quote is closed
/// before it and opened again behind.
std::optional<std::string> quoted_operand(char quote, std::string_view text, const Shell& shell) {
    if (double_quoted_word(text, shell) == fmt::format("\"{}\"", text) && text.find(quote) == text.npos) {
        return std::string(text);
    }
    const std::optional<std::string> word = shell_text(text, shell);
    const std::string single = fmt::format("'{}'", inside_single_quotes(text));
    if (quote == '\'' && word == single) {
        return inside_single_quotes(text);
    }
    return word ? std::optional(fmt::format("{0}{1}{0}", quote, *word)) : std::nullopt;
}

}  // namespace

void set_tree_name_source(OperandSource source) { tree_name_source() = std::move(source); }

std::string selected_tree_name() { return tree_name_source() ? tree_name_source()() : std::string(); }

std::optional<std::string> operand_behind(std::string_view before, std::string_view name,
                                          const Shell& shell) {
    const LineHead head(before, shell.family);
    const Allowed allowed = head.allowed();
    if (name.empty() || allowed == Allowed::nothing) {
        return std::nullopt;
    }
    const std::string text = head.begins_word() ? as_operand(name) : std::string(name);
    if (allowed == Allowed::ordinary) {
        // An expression assigns with "=" and goes on behind ",".
        const bool inert = is_ordinary(text, shell) && text.find_first_of("=,") == text.npos &&
                           (head.begins_word() || text == as_operand(text));
        return inert ? std::optional(text) : std::nullopt;
    }
    return head.open_quote() == 0 ? shell_text(text, shell) : quoted_operand(head.open_quote(), text, shell);
}

bool takes_word_behind(std::string_view command, std::string_view operand, const Shell& shell) {
    const std::string head = fmt::format("{} ", command);
    return LineHead(head, shell.family).open_quote() == 0 && operand_behind(head, operand, shell).has_value();
}

std::string with_home_directory(std::string_view name) {
    if (!name.starts_with('~')) {
        return std::string(name);
    }
    const std::size_t rest = std::min(name.find('/'), name.size());
    return expand_path(name.substr(0, rest)) + std::string(name.substr(rest));
}

std::string path_meant(const std::string& path) {
    std::string expanded = expand_path(path);
    // No file is asked for in vain: its server may not answer.
    return expanded == path || access(path.c_str(), F_OK) == 0 ? path : expanded;
}

std::string name_refusal(std::string_view name) {
    return fmt::format("Name can't be typed into the shell: {}", name);
}
