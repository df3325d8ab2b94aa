// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "shell/current_command.h"
#include "shell/expand_path.h"
#include "shell/operands.h"
#include "shell/text.h"

#include <algorithm>
#include <cstdlib>

// The text routines, with three texts of any kind, parted by NUL.

namespace {

bool holds(std::string_view text, std::string_view any) {
    return text.find_first_of(any) != std::string_view::npos;
}

void check_comments(const std::string& text) {
    require(remove_comments1(text).size() == text.size(), "a comment took other room");
    require(remove_comments1(text).find("/*") == std::string::npos, "a comment is left");
    require(std::ranges::count(remove_comments2(text), '\n') == std::ranges::count(text, '\n'),
            "a line is lost");
    const std::string blank(text.size() + 4, ' ');
    if (text.find("*/") == std::string::npos) {
        require(remove_comments1("/*" + text + "*/x") == blank + "x", "a comment ends elsewhere");
    }
    if (!holds(text, "\n")) {
        require(remove_comments2("//" + text + "\n//") == blank.substr(2) + "\n  ",
                "a line's comment ends elsewhere");
    }
}

void check_removal(std::string_view text) {
    require(!holds(remove_spaces(text), " "), "a space is left");
    require(!holds(remove_nontext(text), " \t\n"), "a blank is left");
    require(!holds(remove_nl(text), "\n") && text.starts_with(remove_nl(text)), "no first line");
    require(text.ends_with(remove_leading_blanks(text)), "not the end of the text");
    require(text.starts_with(remove_trailing_spaces(text)), "not the beginning of the text");
    require(!remove_trailing_slashes(text).ends_with('/'), "a slash is left");
    require(convert_tolower(convert_toupper(text)) == convert_tolower(text), "another letter");
}

void check_paths(std::string_view path, std::string_view directory) {
    if (path.find('/') != std::string_view::npos) {
        require(getdirname(path) + "/" + getfilename(path) == path, "a path's parts are not the path");
    }
    const std::string resolved = replace_dot(path, directory);
    require(path.starts_with('.') || resolved == path, "a path without dots was resolved");
    std::string escaped;
    for (const char c : path) {
        escaped.append("\\") += c;
    }
    if (!holds(path.substr(0, 1), "\n \t") && !path.ends_with(' ')) {
        require(expand_path(escaped) == path || holds(path.substr(path.size() - 1), "\n\t"),
                "a backslash does not keep a character");
    }
    require(with_home_directory(path).ends_with(path.substr(std::min(path.find('/'), path.size()))),
            "a home directory took more than its name");
    (void)expand_path(path);
}

void check_command(std::string_view line, std::string_view prompt, std::string_view command) {
    for (const bool delimiter : {false, true}) {
        const CurrentCommand found = find_command(line, {delimiter, prompt, prompt});
        require(line.ends_with(found.text), "a command that is not on the line");
        require(found.text.empty() == (found.problem != CommandProblem::none), "neither command nor problem");
    }
    const auto operand = [&] { return std::string(line); };
    const std::string filled = fix_command(command, operand, operand);
    require(command.find("$$$") != std::string_view::npos || command.find("???") != std::string_view::npos ||
                filled == command,
            "a command without placeholders was filled");
    require(replace_text(command, prompt, prompt) == command, "a text replaced by itself is another");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    setenv("HOME", "/home/user", 1);
    std::string_view rest = as_text(data, size);
    const std::string_view first = take_part(rest);
    const std::string_view second = take_part(rest);
    check_removal(first);
    check_comments(std::string(first));
    check_paths(first, second);
    check_command(first, second, take_part(rest));
    return 0;
}
