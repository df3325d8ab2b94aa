// SPDX-License-Identifier: MIT
#include "settings/history_file.h"

#include "settings/history_format.h"
#include "shell/files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <iterator>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace {

using Counts = std::unordered_map<std::string_view, int>;

Counts counts_of(std::span<const std::string> rows) {
    Counts counts;
    for (const std::string& row : rows) {
        ++counts[row];
    }
    return counts;
}

}  // namespace

HistoryNews history_news(std::span<const std::string> before, std::span<const std::string> now) {
    HistoryNews news;
    Counts known = counts_of(before);
    for (const std::string& row : now) {
        if (--known[row] < 0) {
            news.added.push_back(row);
        }
    }
    const std::unordered_set<std::string_view> there(now.begin(), now.end());
    std::ranges::copy_if(before, std::back_inserter(news.gone),
                         [&](const std::string& row) { return !there.contains(row); });
    return news;
}

std::vector<std::string> without(std::vector<std::string> rows, std::span<const std::string> gone) {
    Counts left = counts_of(gone);
    std::erase_if(rows, [&](const std::string& row) {
        const auto found = left.find(row);
        return found != left.end() && --found->second >= 0;
    });
    return rows;
}

HistoryTurn::HistoryTurn(const std::string& path)
    : lock_(open((path + ".lock").c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                 S_IRUSR | S_IWUSR)) {
    using namespace std::chrono_literals;
    // A turn takes milliseconds, unless its owner has been stopped just then.
    const auto patience = std::chrono::steady_clock::now() + 1s;
    while (lock_.get() >= 0 && flock(lock_.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (std::chrono::steady_clock::now() > patience) {
            refused_ = true;
            return;
        }
        std::this_thread::sleep_for(1ms);
    }
}

std::optional<HistoryNews> HistoryFile::news() {
    const FileStamp stamp = stamp_of(path_);  // before it is read: what is written meanwhile is news again
    if (stamp == stamp_) {
        return HistoryNews();
    }
    const FileContents file = read_file(path_, largest_history);
    const bool no_file = file.error == ENOENT || file.error == EISDIR || file.error == EINVAL;
    if (no_file || (file.error == 0 && file.text.empty())) {
        return HistoryNews();
    }
    std::optional<std::vector<std::string>> now = file.error == 0 ? parse_history(file.text) : std::nullopt;
    if (!now) {
        return std::nullopt;
    }
    HistoryNews news = history_news(rows_, *now);
    stamp_ = stamp;
    rows_ = std::move(*now);
    return news;
}

int HistoryFile::write(std::span<const std::string> rows, Durability durability) {
    constexpr mode_t owner_only = 0600;
    const int error =
        save_file(path_, format_history(rows), {.exact_mode = owner_only, .durability = durability});
    if (error == 0) {
        rows_.assign(rows.begin(), rows.end());
        stamp_ = stamp_of(path_);
    }
    return error;
}
