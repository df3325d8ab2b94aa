// SPDX-License-Identifier: MIT
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "settings/bookmark_format.h"

#include <algorithm>

// A bookmarks file, and a bookmark that is added to it. The input is the bookmark's category, its name up to
// the first NUL, its path up to the next, and the file.

namespace {

std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

constexpr auto head = std::ssize(bookmark_categories) + 1;  // lines before the sections

/// Whether the sections begin too early: then the count lines are read as entries.
bool marker_among_counts(std::string_view contents) {
    const std::vector<std::string> lines = lines_of(contents);
    return std::any_of(lines.begin(), lines.begin() + head,
                       [](const auto& line) { return line.starts_with("$$"); });
}

/// The new file's sections are the old one's with one line more.
void check_sections(std::string_view before, std::string_view after, std::string_view entry) {
    const std::vector<std::string> now = lines_of(after);
    const std::vector<std::string> old = lines_of(before);
    const auto kept = std::ssize(now) - head - 1;
    require(kept >= 0 && kept <= std::ssize(old), "a line too many or too few");
    const auto [added, rest] = std::mismatch(now.begin() + head, now.end(), old.end() - kept, old.end());
    require(added != now.end() && *added == entry, "the bookmark is not in the file");
    require(std::equal(added + 1, now.end(), rest, old.end()), "a line of the sections changed");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view contents = as_text(data, size);
    Bookmark bookmark;
    if (!contents.empty()) {
        bookmark.category = static_cast<unsigned char>(contents.front()) % bookmark_categories.size();
        contents.remove_prefix(1);
    }
    bookmark.name = take_part(contents);
    bookmark.path = take_part(contents);
    const auto old = parse_bookmarks(contents);
    const BookmarkAddition addition = add_bookmark(contents, bookmark);
    require(old || addition.result == -1, "a bookmark was added to what is no bookmarks file");
    if (addition.result != 1 || !bookmark_refusal(bookmark).empty() || bookmark.name.empty() ||
        bookmark.path.empty()) {
        return 0;
    }
    check_sections(contents, addition.contents, bookmark.name + "," + bookmark.path);
    const auto now = parse_bookmarks(addition.contents);
    require(now && (marker_among_counts(contents) || now->size() == old->size() + 1),
            "not one bookmark more");
    require(std::ranges::find(*now, bookmark) != now->end(), "the bookmark is not read");
    require(add_bookmark(addition.contents, bookmark).result == 3, "a name is added twice");
    return 0;
}
