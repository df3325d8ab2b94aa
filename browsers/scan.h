// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/list_row.h"
#include "toolkit/progress.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

// Reading a directory for a list. Nothing here knows a window.

/// How a scan ended.
enum ScanResult {
    SCAN_OK = 0,
    SCAN_OPEN_FAILED = 1,   ///< no directory, or one that cannot be read
    SCAN_READ_ERROR = 2,    ///< for callers' tables; no scan gives it
    SCAN_TOO_MANY = 3,      ///< 10,000 names or more would have been kept
    SCAN_CLOSE_FAILED = 4,  ///< the directory could not be closed: the rows may be wrong
    SCAN_EMPTY = 5,         ///< no subdirectory, or no name that passes the filter
    SCAN_STOPPED = 6,       ///< it was asked to stop
};

/// What a list's user is told of a result; empty for `SCAN_OK`.
std::string_view scan_message(ScanResult result);

/// What a row's columns tell of its file; nothing of the go-up row's.
struct RowFacts {
    off_t size = 0;
    time_t modified = 0;
};

struct Scan {
    ScanResult result = SCAN_OK;
    std::vector<ListRow> rows;
    std::vector<RowFacts> facts;  ///< one for each row of a scan that has columns
    int count = 0;                ///< what "Number of files displayed" tells
};

/// Which names a filtered scan keeps.
struct NameFilter {
    static constexpr unsigned starting = 1;    ///< the name begins with `start`
    static constexpr unsigned containing = 2;  ///< the name holds `text`

    unsigned mode = 0;  ///< bits of the two; all that are set must hold
    std::string start;
    std::string text;
    bool case_sensitive = false;
};

/// A row for going up, then the subdirectories with a "/" behind the name, then everything else, each sorted
/// by bytes. Links count as what they lead to, but have glyphs of their own; what cannot be examined gets no
/// row. The count is that of all entries but "." and "..". The progress, if there is one, counts the names
/// examined.
Scan scan_directory(const std::string& directory, Progress* progress = nullptr);
/// The same for the names that pass a filter. The count is that of the names that passed, "." and ".."
/// included.
Scan scan_filtered(const std::string& directory, const NameFilter& filter, Progress* progress = nullptr);
/// The names of the subdirectories only, as they are.
Scan scan_subdirectories(const std::string& directory, Progress* progress = nullptr);

/// Sorts names by bytes, in n log n steps whatever their order.
void quicksort(std::span<std::string> names);
