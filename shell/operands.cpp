// SPDX-License-Identifier: MIT
#include "shell/operands.h"

#include "shell/expand_path.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>
#include <unistd.h>

namespace {

OperandSource& tree_name_source() {
    static OperandSource source;
    return source;
}

/// The place behind the beginning of a command line, read character by character.
struct Place {
    char quote = 0;        ///< that is open, 0 for none
    bool ansi = false;     ///< it is that of $'...', where a backslash escapes
    bool escaped = false;  ///< a backslash takes the next character
    bool dollar = false;   ///< so does a "$"
    bool obscure = false;  ///< quotes may nest or escape in ways that are not followed here

    void read(char c, ShellFamily shell) {
        if (escaped) {
            escaped = dollar = false;
            return;
        }
        escaped = c == '\\' && (quote != '\'' || ansi);
        if (escaped) {
            obscure = obscure || (quote != 0 && shell == ShellFamily::csh);  // depends on "backslash_quote"
        } else if (c == quote) {
            quote = 0;
        } else if (quote == 0 && (c == '\'' || c == '"')) {
            quote = c;
            ansi = c == '\'' && dollar && shell != ShellFamily::other;
        } else if (quote != '\'') {
            obscure = obscure || c == '`' || (c == '(' && dollar && quote == '"');
        }
        dollar = c == '$' && !dollar && quote != '\'';
    }
    /// Whether the quotes say all about what the shell does with a text here.
    [[nodiscard]] bool is_plain() const { return !escaped && !dollar && !obscure; }
};

}  // namespace

void set_tree_name_source(OperandSource source) { tree_name_source() = std::move(source); }

std::string selected_tree_name() { return tree_name_source() ? tree_name_source()() : std::string(); }

std::optional<std::string> operand_behind(std::string_view before, std::string_view name,
                                          const Shell& shell) {
    Place place;
    for (const char c : before) {
        place.read(c, shell.family);
    }
    std::optional<std::string> word = shell_word(name, shell);
    if (!place.is_plain()) {
        return word == name ? word : std::nullopt;
    }
    if (place.quote == 0) {
        return word;
    }
    const bool closes_quote = name.find(place.quote) != std::string_view::npos;
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
