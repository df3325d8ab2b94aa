// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A new, empty directory that is removed with all it holds when this object ends: a home to try things in.
class ScratchDirectory {
  public:
    ScratchDirectory();
    ~ScratchDirectory();
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// The path of an entry in the directory.
    [[nodiscard]] std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    /// Writes a file, with the directories above it, and gives its path.
    std::filesystem::path write(std::string_view name, std::string_view content) const;
    /// The same, executable.
    std::filesystem::path write_script(std::string_view name, std::string_view content) const;

  private:
    std::filesystem::path path_;
};

/// The whole content of a file; empty where there is none.
[[nodiscard]] std::string read_file(const std::filesystem::path& path);
