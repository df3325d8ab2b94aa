// SPDX-License-Identifier: MIT
#include "shell/expand_path.h"

#include <cstdlib>
#include <optional>
#include <vector>

#include <pwd.h>

namespace {

constexpr std::string_view blanks = "\n \t";
constexpr std::size_t longest_user_entry = 65'536;

bool is_name_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// Appends the value of the variable that `rest` begins with (its "$" first); returns how much of `rest` it
/// took.
std::size_t append_variable(std::string_view rest, std::string& out) {
    std::size_t begin = 1;
    std::size_t end = 1;
    std::size_t taken = 0;
    if (rest.substr(1).starts_with('{')) {
        begin = 2;
        end = rest.find('}');
        taken = end == std::string_view::npos ? end : end + 1;
    } else {
        while (end < rest.size() && is_name_character(rest[end])) {
            ++end;
        }
        taken = end;
    }
    const char* value = end == std::string_view::npos
                            ? nullptr
                            : std::getenv(std::string(rest.substr(begin, end - begin)).c_str());
    if (value == nullptr) {
        out += '$';
        return 1;
    }
    out += value;
    return taken;
}

std::string with_variables(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == '\\') {
            if (at + 1 < text.size()) {
                out += text[at + 1];
            }
            at += 2;
        } else if (text[at] == '$') {
            at += append_variable(text.substr(at), out);
        } else {
            out += text[at++];
        }
    }
    return out;
}

std::optional<std::string> home_of(const std::string& user) {
    if (user.empty()) {
        const char* home = std::getenv("HOME");
        return home == nullptr ? std::nullopt : std::optional<std::string>(home);
    }
    // Paths are expanded in threads, too.
    std::vector<char> room(longest_user_entry);
    passwd entry{};
    passwd* found = nullptr;
    getpwnam_r(user.c_str(), &entry, room.data(), room.size(), &found);
    return found == nullptr ? std::nullopt : std::optional<std::string>(entry.pw_dir);
}

}  // namespace

std::string expand_path(std::string_view input) {
    const std::size_t first = input.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    input = input.substr(first, input.find_last_not_of(blanks) + 1 - first);
    std::string text = with_variables(input);
    if (!text.starts_with('~') || input.starts_with("\\~")) {
        return text;
    }
    const std::size_t slash = text.find('/');
    const std::optional<std::string> home =
        home_of(text.substr(1, slash == std::string::npos ? slash : slash - 1));
    if (!home) {
        return text;
    }
    const std::string rest = slash == std::string::npos ? "" : text.substr(slash + 1);
    return rest.empty() ? *home : *home + "/" + rest;
}
