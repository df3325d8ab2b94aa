// SPDX-License-Identifier: MIT
#include "browsers/file_list.h"

#include "browsers/notify.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "toolkit/long_work.h"
#include "toolkit/scrolling_list.h"
#include "ui/file_list_browser.h"
#include "ui/plot_setup.h"

#include <functional>
#include <utility>

#include <fmt/printf.h>

namespace {

ScanResult show(Scan scan, ScrollingList& list, int& count) {
    count = 0;
    if (scan.result == SCAN_OK) {
        list.set_rows(std::move(scan.rows));
        count = scan.count;
    } else if (scan.result != SCAN_OPEN_FAILED && scan.result != SCAN_STOPPED) {
        delete_all(list);
    }
    return scan.result;
}

/// Lists a directory, written as its user likes, in the browser, which then stands on it. `listed` is called
/// from the event loop: a server may take its time, or never answer.
void list_in_browser(const std::string& directory,
                     const std::function<void(ScanResult, const std::string& path, int count)>& listed) {
    struct Listing {
        std::string path;
        Scan scan;
    };
    start_work(
        file_list_browser(), "Names read",
        [=](Progress& progress) {
            std::string path = path_meant(directory);
            Scan scan = scan_directory(path, &progress);
            return Listing{std::move(path), std::move(scan)};
        },
        [=](Listing listing) {
            FileListBrowser& browser = file_list_browser();
            int count = 0;
            const ScanResult result = show(std::move(listing.scan), browser.list, count);
            if (result == SCAN_OK) {
                browser.directory.set_text(listing.path);
            }
            listed(result, listing.path, count);
        });
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
    list_in_browser(directory.empty() ? home_dir : directory,
                    [](ScanResult result, const std::string& path, int count) {
                        if (result != SCAN_OK) {
                            file_list_browser().set_left_footer(scan_message(result));
                            return;
                        }
                        plot_setup().file_name.set_text(path);
                        file_list_browser().list.clear_selection();
                        file_list_browser().set_right_footer(number_of_files(count));
                    });
}

Message SetBookmarkFileListDir(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    list_in_browser(path, [](ScanResult result, const std::string& /*path*/, int count) {
        FileListBrowser& browser = file_list_browser();
        if (result != SCAN_OK) {
            browser.set_left_footer(result == SCAN_STOPPED ? scan_message(result) : "Can't set directory");
            return;
        }
        browser.list.select(0);
        browser.file_name.set_text("");
        browser.set_left_footer(number_of_files(count));
    });
    return {};
}
