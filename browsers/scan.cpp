// SPDX-License-Identifier: MIT
#include "browsers/scan.h"

#include "browsers/directory.h"
#include "shell/text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <sys/stat.h>

namespace {

constexpr std::size_t most_names = 9999;
constexpr std::string_view go_up_row = "../ (Go up 1 directory level)";

/// The type bits of what the name stands for in the end; nothing for a link to nowhere.
std::optional<mode_t> type_of(const Directory& directory, const std::string& name) {
    const std::optional<mode_t> mode = directory.mode_of(name);
    return mode ? std::optional(*mode & S_IFMT) : std::nullopt;
}

/// The names that `keeps` keeps, sorted; nothing when they are too many.
template <typename Keeps>
std::optional<std::vector<std::string>> sorted_names(Directory& directory, Keeps keeps,
                                                     const Progress* progress = nullptr) {
    std::vector<std::string> names;
    while (const char* name = directory.next()) {
        if (progress != nullptr && progress->stopping()) {
            break;
        }
        if (!keeps(name)) {
            continue;
        }
        if (names.size() == most_names) {
            return std::nullopt;
        }
        names.emplace_back(name);
    }
    quicksort(names);
    return names;
}

/// The go-up row, the subdirectories, the files; some of them when the work is to stop.
std::vector<ListRow> rows_of(const Directory& directory, std::vector<std::string> names, Progress* progress) {
    std::vector<ListRow> rows{{std::string(go_up_row), Glyph::arrow}};
    std::vector<ListRow> files;
    rows.reserve(names.size() + 1);
    for (std::string& name : names) {
        if (progress != nullptr && !progress->next()) {
            break;
        }
        const std::optional<mode_t> type = is_dots(name) ? std::nullopt : type_of(directory, name);
        if (type == S_IFDIR) {
            rows.push_back({std::move(name) + "/", Glyph::directory});
        } else if (type) {
            files.push_back({std::move(name), Glyph::document});
        }
    }
    std::ranges::move(files, std::back_inserter(rows));
    return rows;
}

template <typename Keeps>
Scan scan_names(const std::string& path, Keeps keeps, Progress* progress = nullptr) {
    Directory directory(path);
    if (!directory.is_open()) {
        return {.result = SCAN_OPEN_FAILED};
    }
    std::optional<std::vector<std::string>> names = sorted_names(directory, keeps, progress);
    if (!names) {
        return {.result = SCAN_TOO_MANY};
    }
    const int count = static_cast<int>(names->size());
    Scan scan{.rows = rows_of(directory, std::move(*names), progress), .count = count};
    if (progress != nullptr && progress->stopping()) {
        return {.result = SCAN_STOPPED};
    }
    scan.result = directory.close() ? SCAN_OK : SCAN_CLOSE_FAILED;
    return scan;
}

}  // namespace

std::string_view scan_message(ScanResult result) {
    static constexpr std::array<std::string_view, 7> messages{
        "",
        "Can't open directory",
        "Directory read error",
        "To many files",
        "Directory close error",
        "No matching files found",
        "Stopped",
    };
    return messages[static_cast<std::size_t>(result)];
}

Scan scan_directory(const std::string& directory, Progress* progress) {
    constexpr int dots = 2;
    Scan scan = scan_names(
        directory, [](const char*) { return true; }, progress);
    scan.count = std::max(scan.count - dots, 0);
    return scan;
}

Scan scan_filtered(const std::string& directory, const NameFilter& filter) {
    const auto folded = [&](std::string_view text) {
        return filter.case_sensitive ? std::string(text) : convert_tolower(text);
    };
    const std::string start = folded(filter.start);
    const std::string text = folded(filter.text);
    Scan scan = scan_names(directory, [&](std::string_view given) {
        const std::string name = folded(given);
        return ((filter.mode & NameFilter::starting) == 0 || name.starts_with(start)) &&
               ((filter.mode & NameFilter::containing) == 0 || name.find(text) != std::string::npos);
    });
    const bool none = scan.result == SCAN_OK && scan.count == 0;
    return none ? Scan{.result = SCAN_EMPTY} : scan;
}

Scan scan_subdirectories(const std::string& directory_path) {
    Directory directory(directory_path);
    if (!directory.is_open()) {
        return {.result = SCAN_OPEN_FAILED};
    }
    std::optional<std::vector<std::string>> names = sorted_names(
        directory, [&](const char* name) { return !is_dots(name) && type_of(directory, name) == S_IFDIR; });
    if (!names) {
        return {.result = SCAN_TOO_MANY};
    }
    Scan scan{.count = static_cast<int>(names->size())};
    for (std::string& name : *names) {
        scan.rows.push_back({std::move(name)});
    }
    if (scan.rows.empty()) {
        scan.result = SCAN_EMPTY;
    } else if (!directory.close()) {
        scan.result = SCAN_CLOSE_FAILED;
    }
    return scan;
}

void quicksort(std::span<std::string> names) { std::ranges::sort(names); }
