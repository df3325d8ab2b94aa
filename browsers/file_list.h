// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/scan.h"

#include <string>

class ScrollingList;

// Directories in lists. A directory that cannot be opened leaves the list as it was; whatever else keeps it
// from being listed empties the list. See browsers/scan.h for the results and counts.

/// Fills a list with a go-up row, the subdirectories and the files.
ScanResult add_name_to_list(ScrollingList& list, const std::string& directory, int& count);
/// The same with the names that pass the filter.
ScanResult add_filtered_to_list(ScrollingList& list, const std::string& directory, const NameFilter& filter,
                                int& count);
/// Fills a list with the names of the subdirectories.
ScanResult add_dir_to_list(ScrollingList& list, const std::string& directory);
/// Deletes all rows.
void delete_all(ScrollingList& list);

/// Has a directory, written as its user likes, listed in the "File List Browser"; the home directory when it
/// is empty. Returns at once.
void list_files_at_startup(const std::string& directory);
