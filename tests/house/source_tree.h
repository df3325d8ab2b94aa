// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// An include of a header of the same tree.
struct Include {
    std::size_t line;    ///< counted from 1
    std::string header;  ///< its path from the top of the tree
};

/// A C++ file, as far as the rules of the house read it.
struct SourceFile {
    std::string path;  ///< from the top of the tree
    std::vector<std::string> lines;
    std::vector<Include> includes;

    [[nodiscard]] std::string_view folder() const;
    [[nodiscard]] bool is_header() const { return path.ends_with(".h"); }
};

using SourceTree = std::map<std::string, SourceFile>;

/// The first folder of a path: "shell" for "shell/door.h".
[[nodiscard]] std::string_view folder_of(std::string_view path);
/// A line of code without the comment at its end.
[[nodiscard]] std::string without_comment(const std::string& line);

/// All files under a directory by their paths from there, but those of hidden folders and of build/.
[[nodiscard]] std::vector<std::string> files_of(const std::filesystem::path& top);
/// The C++ files among them.
[[nodiscard]] SourceTree read_source_tree(const std::filesystem::path& top);
