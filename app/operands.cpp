// SPDX-License-Identifier: MIT
#include "app/operands.h"

#include "browsers/expand_path.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

OperandSource& tree_name_source() {
    static OperandSource source;
    return source;
}

/// The quote that is open at the end of a command line, 0 for none. The rules of POSIX shells serve for csh.
char open_quote(std::string_view text) {
    char quote = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\\' && quote != '\'') {
            ++at;
        } else if (quote == 0 && (c == '\'' || c == '"')) {
            quote = c;
        } else if (c == quote) {
            quote = 0;
        }
    }
    return quote;
}

}  // namespace

void set_tree_name_source(OperandSource source) { tree_name_source() = std::move(source); }

std::string selected_tree_name() { return tree_name_source() ? tree_name_source()() : std::string(); }

std::optional<std::string> operand_behind(std::string_view before, std::string_view name, ShellFamily shell) {
    const char quote = open_quote(before);
    if (quote == 0) {
        return shell_word(name, shell);
    }
    const bool closes_quote = name.find(quote) != std::string_view::npos;
    const bool inert = double_quoted_word(name, shell) == fmt::format("\"{}\"", name);
    return inert && !closes_quote ? std::optional<std::string>(name) : std::nullopt;
}

std::string with_home_directory(std::string_view name) {
    if (!name.starts_with('~')) {
        return std::string(name);
    }
    const std::size_t rest = std::min(name.find('/'), name.size());
    return expand_path(name.substr(0, rest)) + std::string(name.substr(rest));
}

std::string path_meant(const std::string& path) {
    return access(path.c_str(), F_OK) == 0 ? path : expand_path(path);
}

std::string name_refusal(std::string_view name) {
    return fmt::format("Name can't be typed into the shell: {}", name);
}
