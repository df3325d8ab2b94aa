// SPDX-License-Identifier: MIT
#include "browsers/file_list.h"

#include <utility>

namespace {

ScanResult show(ScrollingList& list, Scan scan, View view) {
    if (scan.result == SCAN_OK || scan.result == SCAN_CLOSE_FAILED) {
        list.set_rows(std::move(scan.rows), view);
    } else if (scan.result != SCAN_OPEN_FAILED && scan.result != SCAN_STOPPED) {
        delete_all(list);
    }
    return scan.result;
}

}  // namespace

ScanResult add_name_to_list(ScrollingList& list, Scan scan, View view) {
    return show(list, std::move(scan), view);
}

ScanResult add_filtered_to_list(ScrollingList& list, Scan scan, View view) {
    return show(list, std::move(scan), view);
}

ScanResult add_dir_to_list(ScrollingList& list, Scan scan) {
    return show(list, std::move(scan), View::from_first_row);
}

void delete_all(ScrollingList& list) { list.delete_rows(); }
