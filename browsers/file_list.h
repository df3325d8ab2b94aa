// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/scan.h"
#include "toolkit/scrolling_list.h"

// Directories in lists: what a scan has found becomes the rows. A directory that could not be opened, or
// whose scan was stopped, leaves the list as it was; what else keeps it from being listed empties the list.
// One that could not be closed has been read all the same. Each returns the scan's result.

/// The rows of `scan_directory`.
ScanResult add_name_to_list(ScrollingList& list, Scan scan, View view = View::from_first_row);
/// Those of `scan_filtered`.
ScanResult add_filtered_to_list(ScrollingList& list, Scan scan, View view = View::from_first_row);
/// Those of `scan_subdirectories`.
ScanResult add_dir_to_list(ScrollingList& list, Scan scan);
/// Deletes all rows.
void delete_all(ScrollingList& list);
