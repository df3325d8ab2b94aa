// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/scan.h"
#include "toolkit/notify.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The directory that the "File List Browser" shows.

/// What the browser's user is told of a listing that failed. A directory that could not be closed has been
/// listed where `close_failed` is empty.
struct ListingTexts {
    std::string_view open_failed = "Can't open directory";
    std::string_view read_error = "Directory read error";
    std::string_view too_many = "To many files";
    std::string_view close_failed = "Directory close error";
    std::string_view empty = "No matching files found";

    /// The same text for all failures.
    static constexpr ListingTexts all(std::string_view text) { return {text, text, text, text, text}; }
    [[nodiscard]] std::string_view of(ScanResult result) const;
};

/// What is to be listed, and how.
struct Listing {
    /// Whether the directory is the very name, or as its user has written it.
    enum class Name : bool { exact, expanded };

    std::string directory;
    Name name = Name::expanded;
    std::optional<NameFilter> filter;
    ListingTexts texts;
    std::function<void(const std::string& path, int count)> listed;  ///< called when it has been listed
    std::function<void(std::string_view text)> failed;  ///< told a failure in place of the browser's user
};

/// Lists a directory in the browser, which then stands on it: no row is selected, "File Name:" is empty, the
/// right footer has the count. A directory that cannot be opened leaves everything as it was; what else fails
/// empties the list. Returns soon, with what the left footer has to show by then.
[[nodiscard]] Message list_in_browser(const Listing& listing);
/// Lists the browser's directory again, through the filter that it was listed with; the view stays where it
/// is.
[[nodiscard]] Message list_again();
/// Size and time of the files in the rows.
[[nodiscard]] const std::vector<RowFacts>& shown_facts();

/// Lists a directory at start-up, written as its user likes; the home directory when it is empty.
void list_files_at_startup(const std::string& directory);
