// SPDX-License-Identifier: MIT
// The man page and the user guide name the same options, keys, variables, resources and files, and those that
// the program reads.
#include "tests/house/source_tree.h"
#include "tests/support/scratch_directory.h"

#include <algorithm>
#include <cctype>
#include <ostream>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace {

using Names = std::set<std::string>;

const std::filesystem::path top = ORVIK_SOURCE_DIR;

/// What the pattern's group holds, wherever it is found.
Names found_in(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    return {std::sregex_token_iterator(text.begin(), text.end(), regex, 1), std::sregex_token_iterator()};
}

/// The text of all sources of the program.
const std::string& program() {
    static const std::string text = [] {
        std::string all;
        for (const std::string& path : files_of(top)) {
            const std::string_view folder = folder_of(path);
            const bool checks =
                folder == "tests" || folder == "bench" || folder == "fuzz" || folder == "tools";
            if (!checks && (path.ends_with(".cpp") || path.ends_with(".h"))) {
                all += read_file(top / path);
            }
        }
        return all;
    }();
    return text;
}

Names options_in_code() {
    Names names = found_in(read_file(top / "app/options.cpp"), R"re(Option\{"(-\w+)")re");
    names.merge(found_in(read_file(top / "toolkit/application.cpp"), R"re(name != "(-\w+)")re"));
    names.merge(found_in(read_file(top / "app/options.cpp"), R"re(argument == "(--\w+)")re"));
    return names;
}

Names variables_in_code() {
    Names names =
        found_in(program(),
                 R"re((?:getenv|environment_value|environment_text|open_with|unset_program)\("([A-Z_]+)")re");
    // The shell reads those that stand for programs in commands.
    names.merge(found_in(program(), R"re("(?:open -a )?\$(OPEN[A-Z]+|DIFF)")re"));
    names.merge(Names{"DISPLAY", "LC_ALL", "LC_CTYPE", "LANG"});  // the libraries read them
    return names;
}

Names resources_in_code() { return found_in(program(), R"re(defaults_get_\w+\(\s*"[^"]*",\s*"([^"]*)")re"); }

std::string capitalised(std::string name) {
    name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return name;
}

/// The tool's own keys by their whole names, the terminal pane's by the key alone: "C" for Ctrl+Shift+C.
Names keys_in_code() {
    const std::string tool = read_file(top / "app/termpane.cpp");
    Names names;
    for (const std::string& key : found_in(tool, R"((?:ToolKey\{\.key = |EditingKey\{)Key::(?!none)(\w+))")) {
        names.insert(capitalised(key));
    }
    // A letter that is typed as itself is the shell's key.
    for (const std::string& letter :
         found_in(tool, R"((?:is_control\(|letter = |none, )'(\w)'(?!, '\1', Action::to_shell))")) {
        names.insert("Ctrl+" + capitalised(letter));
    }
    for (const std::string& letter : found_in(tool, R"(is_control_shift\('(\w)')")) {
        names.insert("Ctrl+Shift+" + letter);
    }
    names.merge(
        found_in(read_file(top / "toolkit/pane/view_keys.cpp"), R"(Qt::Key_(?!Control|Backtab)(\w+))"));
    return names;
}

Names files_in_code() {
    return found_in(
        program(),
        R"re("[^"\n]*?(\.orvik-[a-z]+(?:-script)?|\.email-addresses|Orvik\.setup|\w+(?:book|board)\.txt|orvik\.plot)\b)re");
}

/// Where the names of one kind stand.
struct Kind {
    const char* name;
    const char* man_section;
    std::vector<std::string> guide_places;
    Names (*in_code)();
    char joint = '\0';  ///< before this a documented name may have more than the code tells
};

const std::vector<Kind> kinds{
    {"Options", "OPTIONS", {"options"}, options_in_code},
    {"Variables", "ENVIRONMENT", {"variables"}, variables_in_code},
    {"Resources", "X RESOURCES", {"resources"}, resources_in_code},
    {"Keys", "KEYS AND MOUSE", {"keys", "toolkeys"}, keys_in_code, '+'},
    {"Files", "FILES", {"files"}, files_in_code, '/'},
};

/// A cell of a table holds names with commas between them; "-work DIRECTORY" is the name "-work", and
/// "~/.orvik-status0 to ..." is "~/.orvik-status".
Names names_in(const std::string& cells) {
    Names names;
    for (std::string name : found_in(cells, "([^,\n]+)")) {
        name.erase(0, name.find_first_not_of(' '));
        names.insert(std::regex_replace(name, std::regex(R"(^(-\w+|~\S*?)\d*( .*)?$)"), "$1"));
    }
    return names;
}

std::string part_of(const std::string& text, const std::string& begin, const std::string& end) {
    const std::size_t at = text.find(begin);
    EXPECT_NE(at, std::string::npos) << begin;
    return at == std::string::npos ? "" : text.substr(at, text.find(end, at + begin.size()) - at);
}

Names in_man_page(const Kind& kind) {
    const std::string section =
        part_of(read_file(top / "data/man/orvik.1"), std::string(".SH ") + kind.man_section + "\n", "\n.SH ");
    std::string cells;
    for (const std::string& cell : found_in(section, "\n\\.TP\n\\.B ([^\n]*)")) {
        cells += cell + '\n';
    }
    return names_in(std::regex_replace(cells, std::regex(R"(\\f.|\\(?=-))"), ""));
}

Names in_guide(const Kind& kind) {
    const std::string guide = read_file(top / "data/help/user_guide.html");
    std::string cells;
    for (const std::string& place : kind.guide_places) {
        for (const std::string& cell :
             found_in(part_of(guide, "<a name=\"" + place + "\">", "<h"), "<tr><td>(.*?)</td>")) {
            cells += cell + '\n';
        }
    }
    return names_in(std::regex_replace(cells, std::regex("<[^>]*>"), ""));
}

bool same(const Kind& kind, const std::string& documented, const std::string& read) {
    return documented == read || (kind.joint != '\0' && documented.ends_with(kind.joint + read));
}

/// What is done with the mouse begins with a small letter, behind the keys held.
bool is_of_the_mouse(const Kind& kind, const std::string& name) {
    return kind.joint == '+' && std::islower(static_cast<unsigned char>(name[name.rfind('+') + 1])) != 0;
}

std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }

class Documents : public testing::TestWithParam<Kind> {};

TEST_P(Documents, NameTheSame) {
    const Kind& kind = GetParam();
    const Names documented = in_man_page(kind);
    EXPECT_EQ(in_guide(kind), documented);
    const Names read = kind.in_code();
    for (const std::string& name : read) {
        EXPECT_TRUE(std::ranges::any_of(documented, [&](auto& other) { return same(kind, other, name); }))
            << name << " is not documented";
    }
    for (const std::string& name : documented) {
        EXPECT_TRUE(is_of_the_mouse(kind, name) ||
                    std::ranges::any_of(read, [&](auto& other) { return same(kind, name, other); }))
            << name << " is documented, but nothing reads it";
    }
}

INSTANTIATE_TEST_SUITE_P(All, Documents, testing::ValuesIn(kinds),
                         [](const testing::TestParamInfo<Kind>& row) { return std::string(row.param.name); });

}  // namespace
