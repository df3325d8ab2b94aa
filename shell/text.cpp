// SPDX-License-Identifier: MIT
#include "shell/text.h"

#include <algorithm>

namespace {

constexpr std::size_t longest_selection = 1000;

std::string without(std::string_view text, std::string_view unwanted) {
    std::string result;
    std::copy_if(text.begin(), text.end(), std::back_inserter(result),
                 [&](char c) { return unwanted.find(c) == std::string_view::npos; });
    return result;
}

std::string without_trailing(std::string_view text, char unwanted) {
    return std::string(text.substr(0, text.find_last_not_of(unwanted) + 1));
}

/// Overwrites [begin, end) with blanks.
void blank_out(std::string& text, std::size_t begin, std::size_t end) {
    std::fill(text.begin() + static_cast<std::ptrdiff_t>(begin),
              text.begin() + static_cast<std::ptrdiff_t>(end), ' ');
}

std::string mapped(std::string_view text, char first, char last, int offset) {
    std::string result(text);
    for (char& c : result) {
        if (c >= first && c <= last) {
            c = static_cast<char>(c + offset);
        }
    }
    return result;
}

/// `directory` loses its last component; false when it has no "/" to lose one at.
bool go_up(std::string& directory) {
    const std::size_t slash = directory.rfind('/');
    if (slash == std::string::npos) {
        return false;
    }
    directory.erase(slash);
    return true;
}

}  // namespace

std::string fix_command(std::string_view command, const OperandSource& selection,
                        const OperandSource& tree_name) {
    constexpr std::string_view selection_mark = "$$$";
    constexpr std::string_view tree_mark = "???";
    if (command.find(selection_mark) != std::string_view::npos) {
        const std::string selected = remove_nl(selection());
        return selected.size() <= longest_selection ? replace_text(command, selection_mark, selected)
                                                    : std::string(command);
    }
    if (command.find(tree_mark) != std::string_view::npos) {
        return replace_text(command, tree_mark, tree_name());
    }
    return std::string(command);
}

std::string replace_text(std::string_view text, std::string_view needle, std::string_view replacement) {
    std::string result(text);
    const std::size_t at = text.find(needle);
    if (at != std::string_view::npos && !needle.empty()) {
        result.replace(at, needle.size(), replacement);
    }
    return result;
}

std::string replace_dot(std::string_view path, std::string_view cwd) {
    std::string directory(cwd);
    if (path == ".") {
        return directory;
    }
    if (path == "..") {
        return go_up(directory) ? directory : std::string(path);
    }
    if (path.starts_with("./")) {
        return directory + "/" + std::string(path.substr(2));
    }
    if (!path.starts_with("../")) {
        return std::string(path);
    }
    while (path.starts_with("..")) {
        if (!go_up(directory)) {
            return directory;
        }
        path.remove_prefix(path.starts_with("../") ? 3 : 2);
    }
    return path.empty() ? directory : directory + "/" + std::string(path);
}

std::string remove_spaces(std::string_view text) { return without(text, " "); }

std::string remove_nontext(std::string_view text) { return without(text, " \t\n"); }

std::string remove_leading_blanks(std::string_view text) {
    return std::string(text.substr(std::min(text.find_first_not_of(" \t"), text.size())));
}

std::string remove_trailing_spaces(std::string_view text) { return without_trailing(text, ' '); }

std::string remove_trailing_slashes(std::string_view text) { return without_trailing(text, '/'); }

std::string remove_comments1(std::string_view text) {
    std::string result(text);
    std::size_t begin = 0;
    while ((begin = result.find("/*", begin)) != std::string::npos) {
        const std::size_t close = result.find("*/", begin + 2);
        const std::size_t end = close == std::string::npos ? result.size() : close + 2;
        blank_out(result, begin, end);
        begin = end;
    }
    return result;
}

std::string remove_comments2(std::string_view text) {
    std::string result(text);
    std::size_t begin = 0;
    while ((begin = result.find("//", begin)) != std::string::npos) {
        const std::size_t end = std::min(result.find('\n', begin), result.size());
        blank_out(result, begin, end);
        begin = end;
    }
    return result;
}

std::string remove_nl(std::string_view text) { return std::string(text.substr(0, text.find('\n'))); }

std::string remove_line_feeds(std::string_view text) {
    return remove_nl(text.substr(std::min(text.find_first_not_of('\n'), text.size())));
}

std::string ConvertSpaces(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == ' ') {
            result += '\\';
        }
        result += c;
    }
    return result;
}

std::string convert_tolower(std::string_view text) { return mapped(text, 'A', 'Z', 'a' - 'A'); }

std::string convert_toupper(std::string_view text) { return mapped(text, 'a', 'z', 'A' - 'a'); }

std::string getfilename(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1));  // npos + 1 is 0: the whole path
}

std::string getdirname(std::string_view path) { return std::string(path.substr(0, path.rfind('/'))); }
