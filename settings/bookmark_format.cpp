// SPDX-License-Identifier: MIT
#include "settings/bookmark_format.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include <fmt/format.h>

namespace {

constexpr std::size_t longest_line = 1023;
constexpr std::size_t most_lines = 1000;  ///< so many are refused
constexpr int highest_count = 1'000'000;

/// Takes a whole line from the front of a text, without its line feed: a long one is not the tool's to break.
std::string_view take_whole_line(std::string_view& rest) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return line;
}

bool is_header(std::string_view line) { return line.find("_BOOKMARK") != std::string_view::npos; }

std::optional<std::size_t> category_marked_by(std::string_view line) {
    for (std::size_t i = 0; i < bookmark_categories.size(); ++i) {
        if (line.starts_with(bookmark_categories[i].marker.substr(0, bookmark_categories[i].significant))) {
            return i;
        }
    }
    return std::nullopt;
}

std::string_view name_of(std::string_view entry) { return entry.substr(0, entry.find(',')); }

std::string entry_of(const Bookmark& bookmark) { return fmt::format("{},{}", bookmark.name, bookmark.path); }

using Counts = std::array<int, bookmark_categories.size()>;

/// Takes the count lines; nothing when one is not what it should be.
std::optional<Counts> take_counts(std::string_view& rest) {
    Counts counts{};
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const std::string_view line = take_whole_line(rest);
        counts[i] = GetCount(line);
        if (counts[i] < 0 || line.find(bookmark_categories[i].count_key) == std::string_view::npos) {
            return std::nullopt;
        }
    }
    return counts;
}

/// The sections of a file as they are read, and copied with the new bookmark in its place.
class Insertion {
  public:
    Insertion(const Bookmark& bookmark, Counts counts) : bookmark_(bookmark), counts_(counts) {}

    void copy(std::string_view line) {
        if (const auto marked = category_marked_by(line)) {
            begin_section(*marked, line);
        } else if (!in_sections_) {
            return;
        } else if (category_ == bookmark_.category) {
            copy_entry(line);
        } else {
            lines_.emplace_back(line);
        }
    }
    /// A count that overstates its section would have the bookmark lost: it goes to the section's end.
    void end_section() {
        if (in_sections_ && category_ == bookmark_.category) {
            place();
        }
    }

    [[nodiscard]] bool name_exists() const { return name_exists_; }
    [[nodiscard]] bool is_full() const { return lines_.size() >= most_lines; }
    [[nodiscard]] bool is_placed() const { return placed_; }

    [[nodiscard]] std::string contents() const {
        std::string text = "ORVIK_BOOKMARKS\n";
        for (std::size_t i = 0; i < counts_.size(); ++i) {
            text += fmt::format("{}{}\n", bookmark_categories[i].count_key, counts_[i]);
        }
        for (const std::string& line : lines_) {
            text.append(line) += '\n';
        }
        return text;
    }

  private:
    int& count() { return counts_[bookmark_.category]; }

    void begin_section(std::size_t category, std::string_view marker) {
        end_section();
        in_sections_ = in_sections_ || category == 0;
        category_ = category;
        entry_ = 0;
        if (!in_sections_) {
            return;
        }
        lines_.emplace_back(marker);
        if (category == bookmark_.category && count() == 0) {
            place();
        }
    }
    void copy_entry(std::string_view line) {
        ++entry_;
        name_exists_ = name_exists_ || name_of(line) == bookmark_.name;
        if (bookmark_.name < name_of(line)) {
            place();
        }
        lines_.emplace_back(line);
        if (entry_ == count()) {
            place();
        }
    }
    void place() {
        if (!placed_) {
            placed_ = true;
            lines_.push_back(entry_of(bookmark_));
            ++count();
        }
    }

    const Bookmark& bookmark_;
    Counts counts_;
    std::vector<std::string> lines_;
    bool in_sections_ = false;
    std::size_t category_ = 0;
    int entry_ = 0;  ///< of the section, from 1
    bool placed_ = false;
    bool name_exists_ = false;
};

}  // namespace

std::string new_bookmark_file() {
    std::string text = "$ORVIK_BOOKMARKS\n";
    for (const BookmarkCategory& category : bookmark_categories) {
        text += fmt::format("{}0\n", category.count_key);
    }
    for (const BookmarkCategory& category : bookmark_categories) {
        text += fmt::format("{}\n", category.marker);
    }
    return text;
}

std::optional<std::vector<Bookmark>> parse_bookmarks(std::string_view contents) {
    if (!is_header(take_whole_line(contents))) {
        return std::nullopt;
    }
    std::vector<Bookmark> bookmarks;
    Bookmark bookmark;
    bool in_sections = false;
    while (!contents.empty() && bookmarks.size() <= most_bookmarks) {
        const std::string_view line = take_whole_line(contents);
        if (const auto marked = category_marked_by(line)) {
            bookmark.category = *marked;
            in_sections = in_sections || *marked == 0;
        } else if (in_sections && !line.empty()) {
            const std::string_view name = name_of(line);
            const std::string_view path = line.substr(std::min(name.size() + 1, line.size()));
            bookmark.name = name.empty() ? bookmark.name : name;
            bookmark.path = path.empty() ? bookmark.path : path;
            bookmarks.push_back(bookmark);
        }
    }
    return bookmarks;
}

int GetCount(std::string_view line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || colon + 1 == line.size()) {
        return -1;
    }
    int count = 0;
    std::string_view number = line.substr(colon + 1);
    number.remove_prefix(std::min(number.find_first_not_of(' '), number.size()));
    std::from_chars(number.data(), number.data() + number.size(), count);
    return std::clamp(count, 0, highest_count);
}

std::string_view bookmark_refusal(const Bookmark& bookmark) {
    if (bookmark.name.find(',') != std::string::npos) {
        return "Illegal bookmark name. Remove comma.";
    }
    const std::string entry = entry_of(bookmark);
    if (entry.find_first_of(std::string_view("\n\0", 2)) != std::string::npos) {
        return "Bookmark holds a line end";
    }
    if (category_marked_by(entry)) {
        return "Bookmark name begins like a section of the file";
    }
    return entry.size() > longest_line ? "Bookmark is too long" : "";
}

BookmarkAddition add_bookmark(std::string_view contents, const Bookmark& bookmark) {
    if (!is_header(take_whole_line(contents))) {
        return {.result = -1};
    }
    const std::optional<Counts> counts = take_counts(contents);
    if (!counts) {
        return {.result = -1};
    }
    Insertion insertion(bookmark, *counts);
    while (!contents.empty()) {
        insertion.copy(take_whole_line(contents));
        if (insertion.name_exists()) {
            return {.result = 3};
        }
        if (insertion.is_full()) {
            return {.result = 2};
        }
    }
    insertion.end_section();
    if (!insertion.is_placed()) {  // the file has no such section
        return {.result = -1};
    }
    return {.contents = insertion.contents()};
}
