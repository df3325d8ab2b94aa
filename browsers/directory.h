// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>

/// A directory that is read name by name. Opening never waits: a fifo in its place is refused by the system.
class Directory {
  public:
    explicit Directory(const std::string& path);
    ~Directory();
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    /// Of a directory that is not, only `close` may be called.
    [[nodiscard]] bool is_open() const { return stream_ != nullptr; }
    /// The next name, null behind the last. It is there until the next call.
    [[nodiscard]] const char* next();
    /// Whether that name is a symbolic link's.
    [[nodiscard]] bool at_link() const;
    [[nodiscard]] int descriptor() const { return dirfd(stream_); }
    /// What a name stands for in the end; nothing where that cannot be examined.
    [[nodiscard]] std::optional<struct stat> status_of(const std::string& name) const;
    /// The mode of what a name stands for in the end; nothing where that cannot be examined.
    [[nodiscard]] std::optional<mode_t> mode_of(const std::string& name) const;
    /// The same of a symbolic link itself.
    [[nodiscard]] std::optional<mode_t> link_mode_of(const std::string& name) const;
    /// The directory's own mode.
    [[nodiscard]] std::optional<mode_t> mode() const;
    /// Whether that went well.
    [[nodiscard]] bool close();

  private:
    DIR* stream_;
    const dirent* entry_ = nullptr;
};

/// Whether a name is "." or "..".
bool is_dots(std::string_view name);
