// SPDX-License-Identifier: MIT
#include "browsers/file_list.h"

#include "browsers/notify.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "toolkit/scrolling_list.h"
#include "ui/file_list_browser.h"
#include "ui/plot_setup.h"

#include <utility>

#include <fmt/printf.h>

namespace {

ScanResult show(Scan scan, ScrollingList& list, int& count) {
    count = 0;
    if (scan.result == SCAN_OK) {
        list.set_rows(std::move(scan.rows));
        count = scan.count;
    } else if (scan.result != SCAN_OPEN_FAILED) {
        delete_all(list);
    }
    return scan.result;
}

/// Lists a directory in the browser, which then stands on it.
ScanResult list_in_browser(const std::string& directory, int& count) {
    FileListBrowser& browser = file_list_browser();
    const BusyState busy(browser);
    const ScanResult result = add_name_to_list(browser.list, directory, count);
    if (result == SCAN_OK) {
        browser.directory.set_text(directory);
    }
    return result;
}

std::string number_of_files(int count) { return fmt::sprintf("Number of files displayed: %d", count); }

}  // namespace

ScanResult add_name_to_list(ScrollingList& list, const std::string& directory, int& count) {
    return show(scan_directory(directory), list, count);
}

ScanResult add_filtered_to_list(ScrollingList& list, const std::string& directory, const NameFilter& filter,
                                int& count) {
    return show(scan_filtered(directory, filter), list, count);
}

ScanResult add_dir_to_list(ScrollingList& list, const std::string& directory) {
    int count = 0;
    return show(scan_subdirectories(directory), list, count);
}

void delete_all(ScrollingList& list) { list.delete_rows(); }

void list_files_at_startup(const std::string& directory) {
    const std::string path = directory.empty() ? home_dir : path_meant(directory);
    int count = 0;
    const ScanResult result = list_in_browser(path, count);
    if (result != SCAN_OK) {
        file_list_browser().set_left_footer(scan_message(result));
        return;
    }
    plot_setup().file_name.set_text(path);
    file_list_browser().list.clear_selection();
    file_list_browser().set_right_footer(number_of_files(count));
}

Message SetBookmarkFileListDir(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    FileListBrowser& browser = file_list_browser();
    int count = 0;
    if (list_in_browser(path_meant(path), count) != SCAN_OK) {
        return "Can't set directory";
    }
    browser.list.select(0);
    browser.file_name.set_text("");
    return number_of_files(count);
}
