// SPDX-License-Identifier: MIT
// The list of the "File List Browser": rows, keys, columns.
#include "browsers/file_status.h"
#include "browsers/listed_file.h"
#include "browsers/listing.h"
#include "browsers/notify.h"
#include "shell/doubleclick.h"
#include "shell/editor.h"
#include "shell/text.h"
#include "ui/file_list_browser.h"
#include "ui/file_status.h"

#include <algorithm>
#include <array>

#include <fmt/printf.h>

namespace {

constexpr ListingTexts texts_of_rows{.too_many = "Too many files to sort", .close_failed = {}};

/// A column of the list that can be shown.
struct Column {
    std::string_view label;
    int characters;
    std::string (*text)(const RowFacts& facts);
};

constexpr std::array columns{
    Column{"Size", 13, [](const RowFacts& facts) { return std::to_string(facts.size); }},
    Column{"Time", 20, [](const RowFacts& facts) { return status_time(facts.modified); }},
};

/// Which of them are shown.
std::array<bool, columns.size()> is_shown{};

std::string column_text(const Column& column, int row) {
    const auto index = static_cast<std::size_t>(row);
    return index == 0 || index >= shown_facts().size() ? "" : column.text(shown_facts()[index]);
}

Message list_exactly(const std::string& directory) {
    return list_in_browser({.directory = directory, .name = Listing::Name::exact, .texts = texts_of_rows});
}

/// Lists the directory above another one, whose row the keyboard then goes on from.
Message list_above(const std::string& above, const std::string& below) {
    const auto go_to_row = [row = getfilename(below) + "/"](const std::string& /*path*/, int /*count*/) {
        ScrollingList& list = file_list_browser().list;
        const auto found = std::ranges::find(list.all_rows(), row);
        list.go_to(static_cast<int>(found - list.all_rows().begin()));
    };
    return list_in_browser(
        {.directory = above, .name = Listing::Name::exact, .texts = texts_of_rows, .listed = go_to_row});
}

/// A directory directly below the root has nothing above it, by the rule of the double click.
Message go_up(const std::string& directory) {
    const std::string above = getdirname(directory);
    if (above.empty()) {
        file_list_browser().directory.set_text("");
    }
    return list_above(above, directory);
}

/// The double click. A name that only begins with ".." goes up, too.
Message open_row() {
    const std::string directory = file_list_browser().directory.text();
    const std::string name = file_list_browser().file_name.text();
    if (name.starts_with("..")) {
        return go_up(directory);
    }
    const std::string path = fmt::sprintf("%s/%s", directory, name);
    return name.find('/') == name.npos ? edit_file(path) : list_exactly(getdirname(path));
}

}  // namespace

Message File_manager_list(const ListEvent& event) {
    const bool opens = doubleclick(event) || event.kind == ListEvent::Kind::activate;
    FileListBrowser& browser = file_list_browser();
    file_status().file_name.set_text("");
    if (!has_editor()) {
        return no_editor;
    }
    browser.file_name.set_name(event.row == 0 ? ".." : browser.list.row(event.row));
    if (event.row != 0) {
        const ListedFile file = listed_file();
        if (file) {
            show_file_status(browser, file.path, file.name);
        }
    }
    return opens ? open_row() : Message();
}

Message FileListGoUp() {
    const std::string directory = file_list_browser().directory.text();
    const std::string here = remove_trailing_slashes(directory);
    if (directory.empty()) {
        return "Directory not defined";
    }
    const std::string above = here.find('/') == here.npos ? here + "/.." : getdirname(here);
    return list_above(above.empty() || here.empty() ? "/" : above, here);
}

Message FileListAgain() {
    return file_list_browser().directory.text().empty() ? "Directory not defined" : list_again();
}

Message FileListNewName() {
    Message refusal = File_menu_select();
    if (refusal.empty()) {
        file_list_browser().file_name.set_focus();
        file_list_browser().file_name.select_all();
    }
    return refusal;
}

Message FileListColumnMenu() {
    std::vector<MenuEntry> entries;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string label(columns[i].label);
        entries.push_back({.label = label, .value = label, .checked = is_shown[i]});
    }
    file_list_browser().columns->set_entries(entries, FileListColumn);
    return {};
}

Message FileListColumn(const std::string& label) {
    std::vector<ListColumn> shown;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        is_shown[i] = is_shown[i] != (columns[i].label == label);
        if (is_shown[i]) {
            shown.push_back({[i](int row) { return column_text(columns[i], row); }, columns[i].characters});
        }
    }
    file_list_browser().list.set_columns(std::move(shown));
    return {};
}
