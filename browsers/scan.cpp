// SPDX-License-Identifier: MIT
#include "browsers/scan.h"

#include "browsers/directory.h"
#include "shell/text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_set>
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

using Names = std::unordered_set<std::string>;

Glyph glyph_of(const struct stat& status, bool is_link) {
    constexpr mode_t executable = S_IXUSR | S_IXGRP | S_IXOTH;
    if (S_ISDIR(status.st_mode)) {
        return is_link ? Glyph::directory_link : Glyph::directory;
    }
    if (is_link) {
        return Glyph::document_link;
    }
    return S_ISREG(status.st_mode) && (status.st_mode & executable) != 0 ? Glyph::executable
                                                                         : Glyph::document;
}

/// Adds the go-up row, the subdirectories, the files; some of them when the work is to stop.
void add_rows(Scan& scan, const Directory& directory, std::vector<std::string> names, const Names& links,
              Progress* progress) {
    Scan files;
    scan.rows.reserve(names.size() + 1);
    scan.facts.reserve(names.size() + 1);
    const ListRow go_up{std::string(go_up_row), Glyph::arrow};
    scan.rows.push_back(go_up);
    scan.facts.emplace_back();
    for (std::string& name : names) {
        if (progress != nullptr && !progress->next()) {
            break;
        }
        const std::optional<struct stat> status = is_dots(name) ? std::nullopt : directory.status_of(name);
        if (!status) {
            continue;
        }
        const Glyph glyph = glyph_of(*status, links.contains(name));
        const bool is_directory = S_ISDIR(status->st_mode);
        Scan& part = is_directory ? scan : files;
        part.rows.push_back({std::move(name) + (is_directory ? "/" : ""), glyph});
        part.facts.push_back({status->st_size, status->st_mtime});
    }
    std::ranges::move(files.rows, std::back_inserter(scan.rows));
    std::ranges::move(files.facts, std::back_inserter(scan.facts));
}

template <typename Keeps>
Scan scan_names(const std::string& path, Keeps keeps, Progress* progress = nullptr) {
    Directory directory(path);
    if (!directory.is_open()) {
        return {.result = SCAN_OPEN_FAILED};
    }
    Names links;
    const auto keeps_and_looks = [&](const char* name) {
        const bool kept = keeps(name);
        if (kept && directory.at_link()) {
            links.insert(name);
        }
        return kept;
    };
    std::optional<std::vector<std::string>> names = sorted_names(directory, keeps_and_looks, progress);
    if (!names) {
        return {.result = SCAN_TOO_MANY};
    }
    Scan scan{.count = static_cast<int>(names->size())};
    add_rows(scan, directory, std::move(*names), links, progress);
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

Scan scan_filtered(const std::string& directory, const NameFilter& filter, Progress* progress) {
    const auto folded = [&](std::string_view text) {
        return filter.case_sensitive ? std::string(text) : convert_tolower(text);
    };
    const std::string start = folded(filter.start);
    const std::string text = folded(filter.text);
    const auto passes = [&](std::string_view given) {
        const std::string name = folded(given);
        return ((filter.mode & NameFilter::starting) == 0 || name.starts_with(start)) &&
               ((filter.mode & NameFilter::containing) == 0 || name.find(text) != std::string::npos);
    };
    Scan scan = scan_names(directory, passes, progress);
    const bool none = scan.result == SCAN_OK && scan.count == 0;
    return none ? Scan{.result = SCAN_EMPTY} : scan;
}

Scan scan_subdirectories(const std::string& directory_path, Progress* progress) {
    Directory directory(directory_path);
    if (!directory.is_open()) {
        return {.result = SCAN_OPEN_FAILED};
    }
    const auto is_subdirectory = [&](const char* name) {
        return !is_dots(name) && type_of(directory, name) == S_IFDIR;
    };
    std::optional<std::vector<std::string>> names = sorted_names(directory, is_subdirectory, progress);
    if (progress != nullptr && progress->stopping()) {
        return {.result = SCAN_STOPPED};
    }
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
