// SPDX-License-Identifier: MIT
#include "shell/line_head.h"

#include <algorithm>
#include <array>

namespace {

bool is_letter_or_digit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool is_one_of(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

bool is_path_character(char c) {
    return is_letter_or_digit(c) || is_one_of(c, "_./+,:@%=-") || static_cast<unsigned char>(c) >= 0x80;
}

/// A command that reads an operand a second time, as a command line or as an expression: any operand, or only
/// behind an option with that letter, or in a word with that sign.
struct Evaluator {
    std::string_view command;
    std::string_view behind;
};

constexpr Evaluator evaluators[] = {
    // of the shell
    {"eval", ""},
    {"trap", ""},
    {"alias", ""},
    {"sched", ""},
    {"complete", ""},
    {"compgen", ""},
    {"mapfile", ""},
    {"readarray", ""},
    {"let", ""},
    {"read", ""},
    {"typeset", ""},
    {"declare", ""},
    {"integer", ""},
    {"[[", ""},
    {"[", "-v"},
    {"test", "-v"},
    {"printf", "-v"},
    {"print", "-v"},
    // what gives a text to a shell
    {"sh", "-c"},
    {"ash", "-c"},
    {"bash", "-c"},
    {"busybox", "-c"},
    {"csh", "-c"},
    {"dash", "-c"},
    {"fish", "-c"},
    {"ksh", "-c"},
    {"ksh93", "-c"},
    {"mksh", "-c"},
    {"tcsh", "-c"},
    {"zsh", "-c"},
    {"flock", "-c"},
    {"script", "-c"},
    {"xterm", "-e"},
    {"at", ""},
    {"batch", ""},
    {"parallel", ""},
    {"runuser", ""},
    {"screen", ""},
    {"su", ""},
    {"tmux", ""},
    {"watch", ""},
    {"make", "="},
    {"gmake", "="},
    // a shell of another host
    {"autossh", ""},
    {"mosh", ""},
    {"remsh", ""},
    {"rexec", ""},
    {"rsh", ""},
    {"slogin", ""},
    {"ssh", ""},
    {"rcp", ":"},
    {"rsync", ":"},
    {"scp", ":"},
};

/// A token without its directories, which only a path from the root or "." has: "src/sh" is no command.
std::string_view command_of(std::string_view token) {
    const std::size_t slash = token.rfind('/');
    const bool path = token.starts_with('/') || token.starts_with('.');
    return path && slash != std::string_view::npos ? token.substr(slash + 1) : token;
}

/// Whether a token is an option with the letter of `option`, in its short form or among others.
bool holds_option(std::string_view token, std::string_view option) {
    return token.starts_with("--") ? token.substr(2).starts_with(option[1])
                                   : token.starts_with('-') && is_one_of(option[1], token);
}

}  // namespace

LineHead::LineHead(std::string_view text, ShellFamily family) : family_(family) {
    for (const char c : text) {
        read(c);
    }
}

Allowed LineHead::allowed() const {
    if (escaped_ || name_ != Name::none) {
        return Allowed::nothing;
    }
    const bool indirect = quote_ != 0 && (!is_direct_ || ansi_);
    // zsh's "rcquotes": two single quotes side by side are one of the text.
    const bool doubled_quote = closed_single_ && family_ == ShellFamily::zsh;
    const bool doubtful = is_lost_ || bracket_ != 0 || indirect || doubled_quote ||
                          redirection_ != Redirection::none || family_ == ShellFamily::unknown;
    return doubtful || is_read_again() ? Allowed::ordinary : Allowed::any;
}

bool LineHead::is_read_again() const {
    const auto in_word = [this](std::string_view behind) {
        return behind.front() != '-' && word_.find(behind) != std::string::npos;
    };
    return evaluated_ || std::ranges::any_of(unsettled_, in_word);
}

void LineHead::read(char c) {
    read_token(c);
    closed_single_ = false;
    if (escaped_) {
        escaped_ = begins_word_ = false;
        name_ = Name::none;
    } else if (quote_ != 0) {
        read_quoted(c);
    } else {
        read_unquoted(c);
    }
    if (quote_ == 0 && is_blank(c)) {
        word_.clear();
    } else {
        word_ += c;
    }
    last_ = c;
}

void LineHead::read_quoted(char c) {
    if (c == quote_) {
        closed_single_ = c == '\'';
        is_lost_ = is_lost_ || bracket_ != 0;
        quote_ = 0;
        name_ = Name::none;
        return;
    }
    is_direct_ = is_direct_ && is_path_character(c);
    begins_word_ = false;
    if (c == '\\') {
        // Whether it escapes depends on csh's "backslash_quote", on whether sh knows $'...'.
        is_lost_ = is_lost_ || family_ == ShellFamily::csh || (ansi_ && family_ == ShellFamily::other);
        escaped_ = quote_ == '"' || ansi_;
    } else if (quote_ == '"') {
        read_in_double_quotes(c);
    }
}

void LineHead::read_in_double_quotes(char c) {
    const bool behind_dollar = name_ == Name::dollar;
    is_lost_ = is_lost_ || c == '`' || (behind_dollar && is_one_of(c, "(["));
    if (c == '{' && behind_dollar) {
        is_lost_ = is_lost_ || bracket_ != 0;
        bracket_ = '}';
    } else if (c == bracket_) {
        bracket_ = 0;
    }
    read_name(c);
}

void LineHead::read_unquoted(char c) {
    if (c == '\\') {
        escaped_ = true;
        name_ = Name::none;
        return;
    }
    if (c == '\'' || c == '"') {
        read_quote(c);
        return;
    }
    is_lost_ = is_lost_ || c == '`' || ((c == '(' || c == '<') && c == last_);
    read_bracket(c);
    read_separator(c);
    read_name(c);
}

/// An opening quote. One within brackets may be read by rules of its own.
void LineHead::read_quote(char c) {
    is_lost_ = is_lost_ || bracket_ != 0;
    quote_ = c;
    ansi_ = c == '\'' && name_ == Name::dollar;
    is_direct_ = true;
    name_ = Name::none;
    if (redirection_ == Redirection::sign) {
        redirection_ = Redirection::word;
    }
}

/// Subscripts, character classes, "${...}" and lists of alternatives; not the command "[", nor "{".
void LineHead::read_bracket(char c) {
    const bool is_command = is_blank(c) && bracket_begins_word_ && is_one_of(last_, "[{");
    if (c == bracket_ || is_command) {
        bracket_ = 0;
    } else if (c == '[' || c == '{') {
        is_lost_ = is_lost_ || (bracket_ != 0 && (c != '[' || last_ != '['));
        bracket_begins_word_ = bracket_ != 0 ? bracket_begins_word_ : begins_word_ && name_ == Name::none;
        bracket_ = c == '[' ? ']' : '}';
    }
}

void LineHead::read_separator(char c) {
    if (c == '(') {
        ++parentheses_;
    } else if (c == ')') {
        parentheses_ = std::max(0, parentheses_ - 1);
    }
    const bool redirects = c == '&' && (last_ == '>' || last_ == '<');
    // One "&" need not: it may be that of "&>".
    const bool ends_command = is_one_of(c, ";\n") || (c == '|' && last_ != '>') || (c == '&' && last_ == '&');
    if (ends_command && parentheses_ == 0) {
        evaluated_ = false;
        unsettled_.clear();
    }
    if (redirects && last_ == '>' && family_ == ShellFamily::bash) {
        redirection_ = Redirection::sign;
    } else if (ends_command || (is_blank(c) && redirection_ == Redirection::word)) {
        redirection_ = Redirection::none;
    } else if (!is_blank(c) && redirection_ == Redirection::sign) {
        redirection_ = Redirection::word;
    }
    begins_word_ = is_blank(c) || is_one_of(c, ";|&(<>");
}

void LineHead::read_name(char c) {
    const bool letter = is_letter_or_digit(c) || c == '_';
    const bool modifier = c == ':' && (family_ == ShellFamily::csh || family_ == ShellFamily::zsh);
    switch (name_) {
        case Name::none:
            if (c == '$') {
                name_ = Name::dollar;
            } else if (c == '~' && quote_ == 0) {
                name_ = Name::name;
            }
            break;
        case Name::dollar:
            name_ = letter || is_one_of(c, "#?^+=~") ? Name::name : Name::none;
            break;
        case Name::name:
            name_ = c == '$' ? Name::dollar : letter || modifier ? Name::name : Name::none;
            break;
    }
}

/// Commands are looked for in quotes too: what stands there may be a command line.
void LineHead::read_token(char c) {
    if (is_letter_or_digit(c) || is_one_of(c, "_./+-[")) {
        token_ += c;
    } else {
        end_token();
    }
}

void LineHead::end_token() {
    for (const Evaluator& evaluator : evaluators) {
        if (command_of(token_) != evaluator.command) {
            continue;
        }
        if (evaluator.behind.empty()) {
            evaluated_ = true;
        } else {
            unsettled_.push_back(evaluator.behind);
        }
    }
    evaluated_ = evaluated_ || std::ranges::any_of(unsettled_, [this](std::string_view behind) {
                     return behind.front() == '-' && holds_option(token_, behind);
                 });
    token_.clear();
}
