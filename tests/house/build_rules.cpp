// SPDX-License-Identifier: MIT
#include "tests/house/build_rules.h"

#include "tests/house/source_tree.h"
#include "tests/support/scratch_directory.h"

#include <algorithm>
#include <regex>
#include <set>
#include <string_view>

namespace fs = std::filesystem;

namespace {

using Faults = std::vector<std::string>;

/// A way of CMake's to go on without a file.
struct Evasion {
    std::regex command;
    std::string_view fault;
};

const std::vector<Evasion>& evasions() {
    static const std::vector<Evasion> list{
        {std::regex(R"(\binclude\s*\([^)]*\bOPTIONAL\b)"), "an optional include hides a missing file"},
        {std::regex(R"(\bif\s*\([^\n]*\bEXISTS\b)"), "a question for a file hides that it is missing"},
        {std::regex(R"(\bfile\s*\(\s*GLOB)"), "a pattern hides a missing file"},
    };
    return list;
}

struct BuildFile {
    std::string path;  ///< from the top of the tree
    std::string text;  ///< without comments

    [[nodiscard]] fs::path folder() const { return fs::path(path).parent_path(); }
};

std::string at(const std::string& path, std::ptrdiff_t line, std::string_view fault) {
    return path + ":" + std::to_string(line) + ": " + std::string(fault);
}

void check_evasions(const BuildFile& file, Faults& faults) {
    for (const auto& [command, fault] : evasions()) {
        for (std::sregex_iterator match(file.text.begin(), file.text.end(), command), end; match != end;
             ++match) {
            const auto line = 1 + std::count(file.text.begin(), file.text.begin() + match->position(), '\n');
            faults.push_back(at(file.path, line, fault));
        }
    }
}

std::set<std::string> words_of(const std::string& text) {
    static const std::regex word(R"-([^\s()"]+)-");
    return {std::sregex_token_iterator(text.begin(), text.end(), word), std::sregex_token_iterator()};
}

/// The files and folders that a build file names, by their paths from the top of the tree. A function may
/// name
/// "${name}_fuzz.cpp": that is taken with each word of the file.
std::set<std::string> named_by(const BuildFile& file) {
    static const std::regex variable(R"(\$\{(\w+)\})");
    const std::set<std::string> words = words_of(file.text);
    std::set<std::string> names;
    const auto name = [&](const std::string& path) {
        names.insert((file.folder() / path).lexically_normal().string());
    };
    for (const std::string& word : words) {
        if (!std::regex_search(word, variable)) {
            name(word);
            continue;
        }
        for (const std::string& value : words) {
            name(std::regex_replace(word, variable, value));
        }
    }
    return names;
}

}  // namespace

std::vector<std::string> build_faults(const fs::path& tree) {
    static const std::regex comment("#[^\n]*");
    Faults faults;
    std::set<std::string> named;
    std::vector<std::string> wanted;
    for (const std::string& path : files_of(tree)) {
        if (fs::path(path).filename() == "CMakeLists.txt") {
            const BuildFile file{path, std::regex_replace(read_file(tree / path), comment, "")};
            check_evasions(file, faults);
            named.merge(named_by(file));
            wanted.push_back(file.folder().string());
        } else if (path.ends_with(".cpp")) {
            wanted.push_back(path);
        }
    }
    for (const std::string& path : wanted) {
        if (!path.empty() && !named.contains(path)) {
            faults.push_back(at(path, 1, "no CMakeLists.txt names it"));
        }
    }
    std::ranges::sort(faults);
    return faults;
}
