// SPDX-License-Identifier: MIT
// Searching the list of the "File List Browser".
#include "browsers/find_row.h"
#include "browsers/notify.h"
#include "ui/file_list_browser.h"

namespace {

/// Why there is nothing to search or to be searched; empty where there is.
Message search_refusal() {
    FileListBrowser& browser = file_list_browser();
    browser.set_right_footer("");
    if (browser.text.text().empty()) {
        return "Search text not specified";
    }
    return browser.list.rows() <= 1 ? "Directory empty" : "";
}

/// Selects the first row from `first` on that matches.
Message find_from(int first) {
    FileListBrowser& browser = file_list_browser();
    const RowSearch search{.text = browser.text.text(),
                           .at = static_cast<MatchAt>(browser.search.value()),
                           .case_sensitive = browser.case_find.value() == FileListBrowser::case_yes};
    const std::optional<int> row = find_row(browser.list.all_rows(), search, first);
    if (!row) {
        browser.file_name.set_text("");
        return "Search unsuccessful";
    }
    browser.list.select(*row);
    browser.file_name.set_name(search.compared(browser.list.row(*row)));
    return {};
}

}  // namespace

Message FileListBrowserFind() {
    Message refusal = search_refusal();
    return refusal.empty() ? find_from(0) : refusal;
}

Message FileListBrowserNext() {
    Message refusal = search_refusal();
    if (!refusal.empty()) {
        return refusal;
    }
    const ScrollingList& list = file_list_browser().list;
    const std::optional<int> selected = list.selected();
    if (!selected) {
        return "No row selected. Select a start row or use Find button.";
    }
    return *selected == list.rows() - 1 ? "End of list" : find_from(*selected + 1);
}
