// SPDX-License-Identifier: MIT
#include "tests/house/rules.h"

#include "tests/house/source_tree.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <string_view>

namespace {

constexpr std::size_t most_lines = 500;

/// The folders of the program, from the ground up: each may include those before it and itself.
constexpr std::array<std::string_view, 8> floors{"terminal", "toolkit",  "ui",       "shell",
                                                 "browsers", "settings", "commands", "app"};
/// What checks, measures and shows the program may include everything, and nothing of the program includes
/// it.
constexpr std::array<std::string_view, 4> beside_the_house{"tests", "bench", "fuzz", "tools"};

/// A word that code may use only in some places.
struct WordRule {
    std::regex word;
    std::function<bool(const SourceFile&)> forbidden_in;
    std::string_view fault;
};

bool for_checking_only(const SourceFile& file) {
    return std::ranges::find(beside_the_house, file.folder()) != beside_the_house.end();
}

const std::vector<WordRule>& word_rules() {
    static const std::vector<WordRule> rules{
        {std::regex(R"(\bQ[A-Z][a-z]\w*)"),
         [](const SourceFile& file) { return file.folder() == "terminal"; },
         "the terminal engine knows no Qt"},
        {std::regex(R"(\bQString\b)"),
         [](const SourceFile& file) {
             return file.is_header() && file.folder() != "toolkit" && !for_checking_only(file);
         },
         "QString does not leave toolkit/"},
        {std::regex(R"(\bttysw_input\s*\()"),
         [](const SourceFile& file) {
             return file.folder() != "toolkit" && file.path != "shell/door.cpp" && !for_checking_only(file);
         },
         "text is typed into the shell through shell/door.h only"},
    };
    return rules;
}

using Faults = std::vector<std::string>;

std::string at(const SourceFile& file, std::size_t line, std::string_view fault) {
    return file.path + ":" + std::to_string(line) + ": " + std::string(fault);
}

void check_form(const SourceFile& file, Faults& faults) {
    if (file.lines.size() > most_lines) {
        faults.push_back(at(file, most_lines + 1, "longer than 500 lines"));
    }
    if (file.lines.empty() || file.lines.front() != "// SPDX-License-Identifier: MIT") {
        faults.push_back(at(file, 1, "the first line is not the licence's"));
    }
}

void check_words(const SourceFile& file, Faults& faults) {
    for (const WordRule& rule : word_rules()) {
        if (!rule.forbidden_in(file)) {
            continue;
        }
        for (std::size_t i = 0; i < file.lines.size(); ++i) {
            if (std::regex_search(without_comment(file.lines[i]), rule.word)) {
                faults.push_back(at(file, i + 1, rule.fault));
            }
        }
    }
}

/// Whether a file on a floor may include a header. `ui/` binds controls to the procedures of every folder.
bool may_include(std::string_view floor, const std::string& header) {
    const auto* const ours = std::ranges::find(floors, floor);
    const auto* const other = std::ranges::find(floors, folder_of(header));
    return (other != floors.end() && other <= ours) || (floor == "ui" && header.ends_with("/notify.h"));
}

void check_includes(const SourceFile& file, Faults& faults) {
    if (for_checking_only(file)) {
        return;
    }
    if (std::ranges::find(floors, file.folder()) == floors.end()) {
        faults.push_back(at(file, 1, "the folder has no place in the house"));
        return;
    }
    for (const Include& include : file.includes) {
        if (!may_include(file.folder(), include.header)) {
            faults.push_back(
                at(file, include.line, std::string(file.folder()) + "/ may not include " + include.header));
        }
    }
}

/// A header and its source: what one of them includes, both depend on.
std::string module_of(const std::string& path) {
    return std::filesystem::path(path).replace_extension().string();
}

using Modules = std::map<std::string, std::set<std::string>>;

Modules modules_of(const SourceTree& tree) {
    Modules modules;
    for (const auto& [path, file] : tree) {
        const std::string module = module_of(path);
        for (const Include& include : file.includes) {
            if (module_of(include.header) != module) {
                modules[module].insert(module_of(include.header));
            }
        }
    }
    return modules;
}

/// Walks the includes in depth and reports each way that leads back to a module it came through.
class CycleSearch {
  public:
    CycleSearch(const Modules& modules, Faults& faults) : modules_(modules), faults_(faults) {}

    void visit(const std::string& module) {
        if (const auto seen = std::ranges::find(way_, module); seen != way_.end()) {
            report(seen);
            return;
        }
        const auto found = modules_.find(module);
        if (found == modules_.end() || !done_.insert(module).second) {
            return;
        }
        way_.push_back(module);
        for (const std::string& included : found->second) {
            visit(included);
        }
        way_.pop_back();
    }

  private:
    void report(std::vector<std::string>::const_iterator first) {
        std::string text = *first + ": include cycle";
        for (auto step = first; step != way_.end(); ++step) {
            text += ' ' + *step + " ->";
        }
        faults_.push_back(text + ' ' + *first);
    }

    const Modules& modules_;
    Faults& faults_;
    std::vector<std::string> way_;
    std::set<std::string> done_;
};

}  // namespace

std::vector<std::string> house_faults(const std::filesystem::path& tree) {
    const SourceTree sources = read_source_tree(tree);
    Faults faults;
    for (const auto& [path, file] : sources) {
        check_form(file, faults);
        check_words(file, faults);
        check_includes(file, faults);
    }
    const Modules modules = modules_of(sources);
    CycleSearch cycles(modules, faults);
    for (const auto& [module, included] : modules) {
        cycles.visit(module);
    }
    std::ranges::sort(faults);
    return faults;
}
