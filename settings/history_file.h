// SPDX-License-Identifier: MIT
#pragma once

#include "shell/file_stamp.h"
#include "shell/replacement.h"
#include "terminal/descriptor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

/// More is not read of a history file: none grows so large.
inline constexpr std::size_t largest_history = std::size_t{8} * 1024 * 1024;

/// What others have done to the history since it was looked at last.
struct HistoryNews {
    std::vector<std::string> added;  ///< in the order of the file, as often as they were added
    std::vector<std::string> gone;   ///< of which the file holds none any more, as often as it did
    bool operator==(const HistoryNews&) const = default;
};

[[nodiscard]] HistoryNews history_news(std::span<const std::string> before, std::span<const std::string> now);
/// The rows without those that are gone; what has been filed anew since stays.
[[nodiscard]] std::vector<std::string> without(std::vector<std::string> rows,
                                               std::span<const std::string> gone);

/// A turn at a history file: other copies of the tool wait for theirs until it ends, for a second at most.
/// The lock is on a file beside it, since the history itself is replaced. Where that cannot be made, there
/// are no turns.
class HistoryTurn {
  public:
    explicit HistoryTurn(const std::string& path);
    /// Whether another copy has kept its turn all the time.
    [[nodiscard]] bool is_refused() const { return refused_; }

  private:
    terminal::Descriptor lock_;
    bool refused_ = false;
};

/// A history file that this copy of the tool has read or written, and other copies write too.
class HistoryFile {
  public:
    /// A file that is not there.
    explicit HistoryFile(std::string path) : path_(std::move(path)) {}
    /// One that held the rows when it was read, behind the stamp.
    HistoryFile(std::string path, const FileStamp& stamp, std::vector<std::string> rows)
        : path_(std::move(path)), stamp_(stamp), rows_(std::move(rows)) {}

    /// Looks for what others have written; nothing when the file is no whole history file any more. One that
    /// was removed or emptied takes no rows with it, and where there is no file any more, writing says so.
    [[nodiscard]] std::optional<HistoryNews> news();
    /// Replaces the file, which only its owner may read: 0, or why not (errno); it is as it was then.
    [[nodiscard]] int write(std::span<const std::string> rows, Durability durability);

  private:
    std::string path_;
    FileStamp stamp_;
    std::vector<std::string> rows_;  ///< that it held when it was last looked at
};
