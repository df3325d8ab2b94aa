// SPDX-License-Identifier: MIT
#include "shell/quoting.h"

#include "shell/plain_text.h"
#include "shell/text.h"

#include <algorithm>

#include <fmt/core.h>

namespace {

bool is_letter_or_digit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

/// Whether the shell takes every byte beyond ASCII for part of a character that it leaves alone. ksh93 reads
/// its line by 80 bytes: what follows a character that is cut there moves to the front of the line.
bool is_plain(std::string_view text, const Shell& shell) {
    const bool reads_utf8 =
        shell.utf8 && shell.family != ShellFamily::ksh && shell.family != ShellFamily::unknown;
    return is_ascii(text) || (reads_utf8 && is_plain_utf8(text));
}

/// Whether single quotes keep the shell and its line editor from acting on a plain text.
bool quotes_hold(std::string_view text, ShellFamily family) {
    const bool history_mark = text.find('!') != std::string_view::npos && family != ShellFamily::other;
    // With tcsh's "backslash_quote", \' does not close them.
    const bool backslash = text.find('\\') != std::string_view::npos && family == ShellFamily::csh;
    return !history_mark && !backslash && !has_control_characters(text);
}

std::string single_quoted(std::string_view text) { return fmt::format("'{}'", inside_single_quotes(text)); }

/// Bytes beyond ASCII stay as they are, or are written in octal too.
std::string octal_word(std::string_view text, bool keep_high) {
    std::string word = "$'";
    for (const char c : text) {
        const bool high = static_cast<unsigned char>(c) >= 0x80;
        if (is_letter_or_digit(c) || c == '/' || c == '.' || c == '_' || (high && keep_high)) {
            word += c;
        } else {
            word += fmt::format("\\{:03o}", static_cast<unsigned char>(c));
        }
    }
    return word + "'";
}

bool begins_like_an_option(std::string_view name) { return name.starts_with('-') || name.starts_with('+'); }

/// Whether neither a shell nor its line editor acts on anything in a text in double quotes but, perhaps,
/// bytes beyond ASCII.
bool is_inert_in_double_quotes(std::string_view text) {
    constexpr std::string_view live = "\"$`\\!";
    return text.find_first_of(live) == std::string_view::npos && !has_control_characters(text);
}

/// The same for the name of a file, which must not look like an option either.
bool is_name_inert_in_double_quotes(std::string_view name) {
    return !name.empty() && !begins_like_an_option(name) && is_inert_in_double_quotes(name);
}

/// Without its blanks, bytes that are no text may become some.
bool is_ordinary_but_for_blanks(std::string_view text, const Shell& shell) {
    return is_plain(text, shell) && is_ordinary(remove_spaces(text), shell);
}

/// csh looks for history marks within single quotes, and for the end of the line. With "backslash_quote" it
/// lets a backslash escape a quote there too; only tcsh has that, and it knows octal.
std::string csh_script_text(std::string_view text) {
    if (text.find('\\') != std::string_view::npos) {
        return octal_word(text, true);
    }
    std::string word;
    for (const char c : single_quoted(text)) {
        if (c == '!' || c == '\n') {
            word += '\\';
        }
        word += c;
    }
    return word;
}

/// A reader of scripts takes bytes as they are.
constexpr Shell script_reader{.family = ShellFamily::other, .utf8 = true};

}  // namespace

bool is_ordinary(std::string_view text, const Shell& shell) {
    const std::string_view harmless = shell.family == ShellFamily::unknown ? "_./+:-" : "_./+,:@%=-";
    const auto ordinary = [&](char c) {
        return is_letter_or_digit(c) || harmless.find(c) != std::string_view::npos ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    return !text.empty() && !text.starts_with('=') && std::ranges::all_of(text, ordinary) &&
           is_plain(text, shell);
}

std::string as_operand(std::string_view name) {
    return fmt::format("{}{}", begins_like_an_option(name) ? "./" : "", name);
}

std::optional<std::string> shell_text(std::string_view text, const Shell& shell) {
    if (text.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    if (is_ordinary(text, shell)) {
        return std::string(text);
    }
    if (shell.family == ShellFamily::unknown) {
        return std::nullopt;
    }
    const bool plain = is_plain(text, shell);
    if (plain && quotes_hold(text, shell.family)) {
        return single_quoted(text);
    }
    // tcsh takes $'\377' for the character U+00FF, not for the byte.
    const bool possible = shell.family != ShellFamily::other && (plain || shell.family != ShellFamily::csh);
    return possible ? std::optional(octal_word(text, plain)) : std::nullopt;
}

std::optional<std::string> shell_word(std::string_view name, const Shell& shell) {
    return name.empty() ? std::nullopt : shell_text(as_operand(name), shell);
}

std::optional<std::string> double_quoted_word(std::string_view name, const Shell& shell) {
    return is_name_inert_in_double_quotes(name) ? double_quoted_text(name, shell) : shell_word(name, shell);
}

std::optional<std::string> double_quoted_text(std::string_view text, const Shell& shell) {
    const bool inert = is_inert_in_double_quotes(text) && is_plain(text, shell) &&
                       (shell.family != ShellFamily::unknown || is_ordinary(text, shell));
    return inert ? fmt::format("\"{}\"", text) : shell_text(text, shell);
}

std::optional<std::string> escaped_word(std::string_view name, const Shell& shell) {
    const bool escapable = !begins_like_an_option(name) && is_ordinary_but_for_blanks(name, shell) &&
                           (shell.family != ShellFamily::unknown || is_ordinary(name, shell));
    return escapable ? ConvertSpaces(name) : shell_word(name, shell);
}

std::string script_text(std::string_view text, ShellFamily shell) {
    if (is_ordinary(text, script_reader)) {
        return std::string(text);
    }
    return shell == ShellFamily::csh ? csh_script_text(text) : single_quoted(text);
}

std::string script_word(std::string_view name, ShellFamily shell) {
    const std::string path = as_operand(name);
    return is_ordinary_but_for_blanks(path, script_reader) ? ConvertSpaces(path) : script_text(path, shell);
}

std::string script_double_quoted(std::string_view name, ShellFamily shell) {
    return is_name_inert_in_double_quotes(name) ? fmt::format("\"{}\"", name) : script_word(name, shell);
}

std::string inside_single_quotes(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\'') {
            result += "'\\''";
        } else {
            result += c;
        }
    }
    return result;
}

bool is_host_name(std::string_view name) {
    constexpr std::string_view signs = "._%@:-";
    const auto allowed = [&](char c) {
        return is_letter_or_digit(c) || signs.find(c) != std::string_view::npos;
    };
    return !name.empty() && !name.starts_with('-') && std::all_of(name.begin(), name.end(), allowed);
}

bool has_control_characters(std::string_view text) {
    return std::any_of(text.begin(), text.end(), is_control);
}
