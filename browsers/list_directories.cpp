// SPDX-License-Identifier: MIT
// What lists another directory in the "File List Browser", or takes its directory.
#include "browsers/listing.h"
#include "browsers/notify.h"
#include "shell/expand_path.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "ui/clearcase_setup.h"
#include "ui/file_list_browser.h"
#include "ui/main_window.h"

#include <utility>

namespace {

const Message no_directory = "Directory not defined";

/// A directory that is kept elsewhere.
struct KeptDirectory {
    std::string_view missing;
    std::string_view failed;
};

Message list_kept(const std::string& directory, const KeptDirectory& texts) {
    return directory.empty()
               ? Message(texts.missing)
               : list_in_browser({.directory = directory, .texts = ListingTexts::all(texts.failed)});
}

/// Why the filter cannot be applied; empty where it can.
Message filter_refusal(const NameFilter& filter) {
    if ((filter.mode & NameFilter::starting) != 0 && filter.start.empty()) {
        return "Start string not defined";
    }
    const bool no_text = (filter.mode & NameFilter::containing) != 0 && filter.text.empty();
    return no_text ? "Text string not defined" : "";
}

}  // namespace

Message File_menu_set_directory() {
    const std::string directory = file_list_browser().directory.text();
    return directory.empty() ? no_directory : send(CommandLine("cd").path(path_meant(directory)));
}

Message Get_directory() {
    const SelectedText selected = selected_name(selection_for_button);
    return selected ? list_in_browser(
                          {.directory = selected.text, .texts = ListingTexts::all("Can't set directory")})
                    : selected.refusal;
}

Message FileListBrowserHome() {
    return list_kept(home_dir, {"Home directory not specified", "Can't set home directory"});
}

Message FileListBrowserConfigSpec() {
    return list_kept(clearcase_setup().config_spec_directory.text(),
                     {"Config spec directory not specified", "Can't set config spec directory"});
}

Message FileListBrowserCurrent() {
    return list_kept(main_window().cwd.text(),
                     {"Current directory not specified", "Can't set current directory"});
}

Message FileListBrowserDirectory() {
    const std::string directory = file_list_browser().directory.text();
    if (directory.empty()) {
        return no_directory;
    }
    const bool expands = directory.find_first_of("~$") != directory.npos;
    if (expands && expand_path(directory).empty()) {
        return "Illegal file name";
    }
    return list_in_browser({.directory = directory,
                            .name = expands ? Listing::Name::expanded : Listing::Name::exact,
                            .texts = {.close_failed = {}, .empty = {}}});
}

Message FileListBrowserDisplayAll() {
    const std::string directory = file_list_browser().directory.text();
    return directory.empty() ? no_directory : list_in_browser({.directory = directory});
}

Message FileListBrowserFilter() {
    const FileListBrowser& browser = file_list_browser();
    const std::string directory = browser.directory.text();
    if (directory.empty()) {
        return no_directory;
    }
    NameFilter filter{.mode = browser.display_files.value(),
                      .start = browser.start_string.text(),
                      .text = browser.text_string.text(),
                      .case_sensitive = browser.case_filter.value() == FileListBrowser::case_yes};
    const bool keeps_all = filter.mode == 0;
    Message message = filter_refusal(filter);
    if (message.empty()) {
        message = list_in_browser({.directory = directory, .filter = std::move(filter)});
    }
    return keeps_all && message.empty() ? "No filter set. All files will be displayed" : message;
}
