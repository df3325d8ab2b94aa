// SPDX-License-Identifier: MIT
#include "browsers/listing.h"

#include "browsers/browser_work.h"
#include "browsers/file_list.h"
#include "browsers/notify.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "ui/file_list_browser.h"
#include "ui/plot_setup.h"

#include <utility>

#include <fmt/printf.h>

namespace {

/// What stands in the list beside its rows.
struct Shown {
    std::optional<NameFilter> filter;
    std::vector<RowFacts> facts;
};
Shown shown;

struct Found {
    std::string path;
    Scan scan;
};

Found find(const Listing& listing, Progress& progress) {
    const bool exact = listing.name == Listing::Name::exact;
    std::string path = exact ? listing.directory : path_meant(listing.directory);
    Scan scan =
        listing.filter ? scan_filtered(path, *listing.filter, &progress) : scan_directory(path, &progress);
    return {std::move(path), std::move(scan)};
}

void show_failure(ScanResult result, std::string_view text) {
    FileListBrowser& browser = file_list_browser();
    browser.set_left_footer(text);
    if (result == SCAN_CLOSE_FAILED) {
        delete_all(browser.list);
    }
    if (browser.list.rows() == 0) {
        browser.set_right_footer("");
    }
}

void show(const Listing& listing, Found found) {
    FileListBrowser& browser = file_list_browser();
    const View view = browser.directory.text() == found.path ? View::kept : View::from_first_row;
    std::vector<RowFacts> facts = std::move(found.scan.facts);
    const int count = found.scan.count;
    const auto add = listing.filter ? add_filtered_to_list : add_name_to_list;
    const ScanResult result = add(browser.list, std::move(found.scan), view);
    if (const std::string_view text = listing.texts.of(result); !text.empty()) {
        show_failure(result, listing.failed ? "" : text);
        if (listing.failed) {
            listing.failed(text);
        }
        return;
    }
    shown = {listing.filter, std::move(facts)};
    browser.directory.set_name(found.path);
    browser.file_name.set_text("");
    browser.set_right_footer(fmt::sprintf("Number of files displayed: %d", count));
    if (listing.listed) {
        listing.listed(found.path, count);
    }
}

}  // namespace

std::string_view ListingTexts::of(ScanResult result) const {
    switch (result) {
        case SCAN_OPEN_FAILED:
            return open_failed;
        case SCAN_READ_ERROR:
            return read_error;
        case SCAN_TOO_MANY:
            return too_many;
        case SCAN_CLOSE_FAILED:
            return close_failed;
        case SCAN_EMPTY:
            return empty;
        default:
            return scan_message(result);
    }
}

Message list_in_browser(const Listing& listing) {
    return work_in_browser(
        "Names read", [listing](Progress& progress) { return find(listing, progress); },
        [listing](Found found) {
            show(listing, std::move(found));
            return no_message;
        });
}

Message list_again() {
    return list_in_browser({.directory = file_list_browser().directory.text(),
                            .name = Listing::Name::exact,
                            .filter = shown.filter});
}

const std::vector<RowFacts>& shown_facts() { return shown.facts; }

void list_files_at_startup(const std::string& directory) {
    (void)list_in_browser(
        {.directory = directory.empty() ? home_dir : directory,
         .listed = [](const std::string& path, int /*count*/) { plot_setup().file_name.set_text(path); }});
}

Message SetBookmarkFileListDir(const std::string& path) {
    if (path.empty()) {
        return {};
    }
    return list_in_browser({.directory = path,
                            .texts = ListingTexts::all("Can't set directory"),
                            .listed = [](const std::string& /*path*/, int /*count*/) {
                                FileListBrowser& browser = file_list_browser();
                                browser.list.select(0);
                                browser.set_left_footer(browser.right_footer());
                            }});
}
