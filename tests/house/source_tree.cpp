// SPDX-License-Identifier: MIT
#include "tests/house/source_tree.h"

#include <fstream>
#include <regex>

namespace fs = std::filesystem;

std::string_view folder_of(std::string_view path) { return path.substr(0, path.find('/')); }

std::string_view SourceFile::folder() const { return folder_of(path); }

std::string without_comment(const std::string& line) {
    static const std::regex comment(R"((^|[^:])//.*|^ *\*.*|/\*.*)");
    return std::regex_replace(line, comment, "$1");
}

namespace {

bool is_skipped(const std::string& name) { return name.starts_with('.') || name == "build"; }

SourceFile read_source(const fs::path& top, const std::string& path) {
    SourceFile file{path, {}, {}};
    std::ifstream in(top / path);
    for (std::string line; std::getline(in, line);) {
        file.lines.push_back(line);
    }
    return file;
}

/// Keeps those includes that name a file of the tree: from its top, or beside the including file.
void find_includes(SourceFile& file, const SourceTree& tree) {
    static const std::regex include(R"(^\s*#\s*include\s*["<]([^">]+)[">])");
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        std::smatch match;
        if (!std::regex_search(file.lines[i], match, include)) {
            continue;
        }
        const std::string beside =
            (fs::path(file.path).parent_path() / match[1].str()).lexically_normal().string();
        for (const std::string& candidate : {match[1].str(), beside}) {
            if (tree.contains(candidate)) {
                file.includes.push_back({i + 1, candidate});
                break;
            }
        }
    }
}

}  // namespace

std::vector<std::string> files_of(const fs::path& top) {
    std::vector<std::string> files;
    for (auto entry = fs::recursive_directory_iterator(top); entry != fs::recursive_directory_iterator();
         ++entry) {
        if (entry->is_directory() && is_skipped(entry->path().filename().string())) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            files.push_back(fs::relative(entry->path(), top).string());
        }
    }
    return files;
}

SourceTree read_source_tree(const fs::path& top) {
    SourceTree tree;
    for (const std::string& path : files_of(top)) {
        if (path.ends_with(".cpp") || path.ends_with(".h")) {
            tree.emplace(path, read_source(top, path));
        }
    }
    for (auto& [path, file] : tree) {
        find_includes(file, tree);
    }
    return tree;
}
