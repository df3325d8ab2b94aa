// SPDX-License-Identifier: MIT
#include "shell/quoting.h"

#include "shell/text.h"

#include <algorithm>

#include <fmt/core.h>

namespace {

bool is_letter_or_digit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

bool is_continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

/// Whether the bytes beyond ASCII are well-formed enough to be typed as they are: lead bytes with as many
/// continuation bytes as they ask for, and no C1 control character (U+0080 to U+009F).
bool is_plain_utf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = lead < 0x80   ? 1
                                   : lead < 0xC2 ? 0
                                   : lead < 0xE0 ? 2
                                   : lead < 0xF0 ? 3
                                   : lead < 0xF5 ? 4
                                                 : 0;
        if (length == 0 || at + length > text.size()) {
            return false;
        }
        const std::string_view rest = text.substr(at + 1, length - 1);
        const bool c1 = lead == 0xC2 && static_cast<unsigned char>(rest[0]) < 0xA0;
        if (c1 || !std::all_of(rest.begin(), rest.end(), is_continuation)) {
            return false;
        }
        at += length;
    }
    return true;
}

bool is_ordinary(std::string_view name) {
    constexpr std::string_view harmless = "_./+,:@%=-";
    const auto ordinary = [&](char c) {
        return is_letter_or_digit(c) || harmless.find(c) != std::string_view::npos ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    return !name.empty() && !name.starts_with('=') && std::all_of(name.begin(), name.end(), ordinary) &&
           is_plain_utf8(name);
}

/// Text beyond ASCII stays as it is where it is text; bytes that are none are written in octal too.
std::string octal_word(std::string_view name) {
    const bool text = is_plain_utf8(name);
    std::string word = "$'";
    for (const char c : name) {
        const bool high = static_cast<unsigned char>(c) >= 0x80;
        if (is_letter_or_digit(c) || c == '/' || c == '.' || c == '_' || (high && text)) {
            word += c;
        } else {
            word += fmt::format("\\{:03o}", static_cast<unsigned char>(c));
        }
    }
    return word + "'";
}

}  // namespace

ShellFamily shell_family(std::string_view shell_name) {
    const auto named = [&](std::string_view part) { return shell_name.find(part) != std::string_view::npos; };
    if (named("csh")) {
        return ShellFamily::csh;
    }
    if (named("bash") || named("ksh")) {
        return ShellFamily::bash;
    }
    return named("zsh") ? ShellFamily::zsh : ShellFamily::other;
}

std::optional<std::string> shell_word(std::string_view name, ShellFamily shell) {
    if (name.empty() || name.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    const std::string path = fmt::format("{}{}", name.starts_with('-') ? "./" : "", name);
    if (is_ordinary(path)) {
        return path;
    }
    const bool text = is_plain_utf8(path);
    const bool history_mark = path.find('!') != std::string::npos && shell != ShellFamily::other;
    if (text && !has_control_characters(path) && !history_mark) {
        return fmt::format("'{}'", inside_single_quotes(path));
    }
    // tcsh takes $'\377' for the character U+00FF, not for the byte.
    const bool possible = shell != ShellFamily::other && (text || shell != ShellFamily::csh);
    return possible ? std::optional(octal_word(path)) : std::nullopt;
}

std::optional<std::string> double_quoted_word(std::string_view name, ShellFamily shell) {
    constexpr std::string_view live_in_double_quotes = "\"$`\\!";
    const bool inert = !name.empty() && !name.starts_with('-') &&
                       name.find_first_of(live_in_double_quotes) == std::string_view::npos &&
                       !has_control_characters(name) && is_plain_utf8(name);
    return inert ? fmt::format("\"{}\"", name) : shell_word(name, shell);
}

std::string system_word(std::string_view name) {
    const std::string path = fmt::format("{}{}", name.starts_with('-') ? "./" : "", name);
    return is_ordinary(remove_spaces(path)) ? ConvertSpaces(path) : quoted_word(path);
}

std::string quoted_word(std::string_view text) {
    return is_ordinary(text) ? std::string(text) : fmt::format("'{}'", inside_single_quotes(text));
}

std::optional<std::string> escaped_word(std::string_view name, ShellFamily shell) {
    const bool only_blanks = !name.starts_with('-') && is_ordinary(remove_spaces(name));
    return only_blanks ? ConvertSpaces(name) : shell_word(name, shell);
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
