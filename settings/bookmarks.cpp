// SPDX-License-Identifier: MIT
#include "settings/bookmarks.h"

#include "browsers/notify.h"
#include "settings/bookmark_format.h"
#include "settings/load_file.h"
#include "settings/notify.h"
#include "shell/editor.h"
#include "shell/files.h"
#include "shell/messages.h"
#include "shell/operands.h"
#include "ui/bookmark_definition.h"
#include "ui/bookmarks.h"
#include "ui/file_list_browser.h"
#include "ui/file_tree_browser.h"
#include "ui/main_window.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include <fmt/format.h>

namespace {

/// More is not read of a file: a thousand lines are the most there may be.
constexpr std::size_t most_bytes = std::size_t{8} * 1024 * 1024;

/// A submenu of "Bookmarks", in the order of the categories.
struct Submenu {
    std::string_view label;
    MenuNotify chosen;
};

constexpr std::array<Submenu, bookmark_categories.size()> submenus{{
    {"Directories", SetBookmarkDir},
    {"Sources", OpenBookmarkSource},
    {"Executables", RunBookmarkExec},
    {"Scripts", RunBookmarkScript},
    {"HTML", OpenBookmarkHTML},
    {"PDF", OpenBookmarkPDF},
    {"Other", OpenBookmarkOther},
}};

const Message no_bookmark_file = "Couldn't open bookmarks file";

using Entries = std::vector<MenuEntry>;

Menu menu_of(std::string_view title, const Entries& entries, MenuNotify chosen) {
    Menu menu(title);
    menu.set_entries(entries, chosen);
    return menu;
}

std::string bookmark_path() { return path_meant(bookmarks().bookmark_file.text()); }

/// Makes the file when it is missing or empty; whether there is one then.
bool has_bookmark_file(const std::string& path) {
    std::error_code missing;
    const bool empty =
        !std::filesystem::exists(path, missing) ||
        (std::filesystem::is_regular_file(path, missing) && std::filesystem::file_size(path, missing) == 0);
    return !empty || GenerateNewBookmarkFile(path) == 1;
}

/// Why "Bookmark Definition" could not add the bookmark to a file; empty when it did.
Message addition_fault(const std::string& path, const BookmarkAddition& addition) {
    switch (addition.result) {
        case 0:
            return addition.error == ENOENT
                       ? Message(bookmarks_load.unreadable)
                       : fmt::format("Could not save {}: {}", path, std::strerror(addition.error));
        case 2:
            return "Can't store more bookmarks";
        case 3:
            return "Bookmark already exists";
        default:
            return load_message(bookmarks_load, addition.result);
    }
}

/// Makes the menus anew; returns `done`, or why not.
Message rebuild_menus(const std::string& path, std::string_view done) {
    Message fault = load_message(bookmarks_load, SetupBookmarksMenu(path));
    return fault.empty() ? Message(done) : fault;
}

/// Why "Bookmark Definition" makes no bookmark; empty when it does.
std::string_view definition_refusal(const Bookmark& bookmark) {
    if (bookmark.name.empty()) {
        return "Bookmark name not specified";
    }
    if (bookmark.path.empty()) {
        return "Bookmark not specified";
    }
    if (bookmarks().bookmark_file.text().empty()) {
        return "Bookmark file not specified";
    }
    return bookmark_refusal(bookmark);
}

}  // namespace

int GenerateNewBookmarkFile(const std::string& path) {
    return save_file(path, new_bookmark_file()) == 0 ? 1 : 0;
}

int SetupBookmarksMenu(const std::string& path) {
    const LoadedFile file = load_file(path, most_bytes);
    if (!file.text) {
        return 0;
    }
    const std::optional<std::vector<Bookmark>> read = parse_bookmarks(*file.text);
    if (!read) {
        return -1;
    }
    if (file.error != 0 || read->size() > most_bookmarks) {
        return 2;
    }
    std::array<Entries, submenus.size()> entries;
    for (const Bookmark& bookmark : *read) {
        entries[bookmark.category].push_back({bookmark.name, bookmark.path});
    }
    Menu book_mark_menu("Bookmarks");
    for (std::size_t i = 0; i < submenus.size(); ++i) {
        book_mark_menu.add_pull_right(submenus[i].label, menu_of({}, entries[i], submenus[i].chosen));
    }
    main_window().bookmark_menu.set_menu(std::move(book_mark_menu));
    main_window().bookmark_menu.set_tool_tip("Bookmarks");
    const Entries& directories = entries.front();
    file_tree_browser().bookmark_menu.set_menu(menu_of("Set Root", directories, SetBookmarkRoot));
    file_tree_browser().bookmark_menu.set_tool_tip("Bookmarked directories as the root");
    file_list_browser().bookmark_menu.set_menu(menu_of("Set Dir", directories, SetBookmarkFileListDir));
    return 1;
}

BookmarkAddition AddNewBookmark(const std::string& path, const Bookmark& bookmark) {
    const FileContents file = read_file(path, most_bytes);
    if (file.error != 0) {
        return {.result = 0, .error = file.error};
    }
    BookmarkAddition addition = add_bookmark(file.text, bookmark);
    if (addition.result == 1) {
        addition.error = save_file(path, addition.contents);
        addition.result = addition.error == 0 ? 1 : 0;
    }
    return addition;
}

void load_bookmarks_at_startup() {
    if (bookmarks().bookmark_file.text().empty()) {
        report("Bookmarks file not specified\n");
        return;
    }
    report_load(bookmarks_load, SetupBookmarksMenu(bookmark_path()));
}

Message tell_of_missing_bookmarks() {
    return main_window().bookmark_menu.menu().has_entries()
               ? ""
               : "No bookmarks yet: the button \"add bookmark\" makes one";
}

Message BookmarksUpdate() {
    const std::string path = bookmark_path();
    return has_bookmark_file(path) ? rebuild_menus(path, "Bookmark menu updated") : no_bookmark_file;
}

Message BookmarkFIleEdit() {
    const std::string path = bookmark_path();
    std::error_code unknown;
    if (!editor_line(path)) {
        return no_editor;
    }
    return std::filesystem::exists(path, unknown) ? edit_file(path) : "Bookmarks file doesn't exists";
}

Message BookmarkDefinitionAddBookmark() {
    const BookmarkDefinition& window = bookmark_definition();
    const Bookmark bookmark{static_cast<std::size_t>(window.file_type.value()), window.bookmark_name.text(),
                            window.bookmarked_file.text()};
    const std::string_view refusal = definition_refusal(bookmark);
    if (!refusal.empty()) {
        return Message(refusal);
    }
    const std::string path = bookmark_path();
    if (!has_bookmark_file(path)) {
        return no_bookmark_file;
    }
    Message fault = addition_fault(path, AddNewBookmark(path, bookmark));
    return fault.empty() ? rebuild_menus(path, "Bookmark added to bookmark menu") : fault;
}

// Return accepts what the fields hold already; the buttons read it there.
void BookmarkSetupFileName() {}
void BookmarkDefinitionFile() {}
void BookmarkDefinitionName() {}
void BookmarkDefinitionType() {}
