// SPDX-License-Identifier: MIT
// Both "Lookup Directories": a list of the subdirectories of the directory in a field, in which one goes
// down and up.
#include "browsers/file_list.h"
#include "browsers/notify.h"
#include "browsers/paths.h"
#include "browsers/tree/open_node.h"
#include "browsers/window_work.h"
#include "shell/doubleclick.h"
#include "shell/operands.h"
#include "shell/send.h"
#include "ui/file_tree_browser.h"
#include "ui/lookup_directories_main.h"
#include "ui/lookup_directories_tree.h"
#include "ui/main_window.h"

#include <array>
#include <functional>

namespace {

const Message go_down_hint = "Double click in the list to go down";

/// One of the two windows, and the field that it works on.
struct Lookup {
    Frame& window;
    ScrollingList& list;
    TextField& field;
};

Lookup tree_lookup() {
    LookupDirectoriesTree& window = lookup_directories_tree();
    return {window, window.list, file_tree_browser().root_directory};
}

Lookup main_lookup() {
    LookupDirectoriesMain& window = lookup_directories_main();
    return {window, window.list, window.dir};
}

/// What is said when a listing is over.
enum class Said : unsigned char { result, result_if_not_empty, hint };

Message message_of(ScanResult result, Said said) {
    static constexpr std::array<std::string_view, 7> messages{
        "",
        "Directory could not be read",
        "Directory read error",
        "Too many files",
        "Directory close error",
        "No more directories",
        "Stopped",
    };
    if (said == Said::hint) {
        return go_down_hint;
    }
    const bool silent = said == Said::result_if_not_empty && result == SCAN_EMPTY;
    return Message(silent ? "" : messages[static_cast<std::size_t>(result)]);
}

using PathStep = std::function<std::string(const std::string& expanded)>;

/// Expands what is in the field, takes a step from there, and lists the subdirectories of where that leads.
Message list_from_field(const Lookup& lookup, const PathStep& step, Said said) {
    struct Found {
        std::string path;
        Scan scan;
    };
    return work_for(
        lookup.window, "Names read",
        [written = lookup.field.text(), step](Progress& progress) {
            std::string path = step(path_meant(written));
            Scan scan = scan_subdirectories(path, &progress);
            return Found{std::move(path), std::move(scan)};
        },
        [lookup, said](Found listing) {
            lookup.field.set_name(listing.path);
            const ScanResult result = add_dir_to_list(lookup.list, std::move(listing.scan));
            lookup.list.clear_selection();
            return message_of(result, said);
        });
}

std::string stay(const std::string& path) { return path; }

/// A double click, or Return, in the list goes down.
Message go_down(const Lookup& lookup, const ListEvent& event) {
    if (doubleclick(event) || event.kind == ListEvent::Kind::activate) {
        return list_from_field(
            lookup,
            [name = lookup.list.row(event.row)](const std::string& path) {
                return path_in(path == "/" ? path : remove_trailing_slashes(path), name);
            },
            Said::result);
    }
    return {};
}

Message list_tree_lookup(const PathStep& step, Said said) {
    if (file_tree_browser().root_directory.text().empty()) {
        return "Root directory not specified";
    }
    return list_from_field(tree_lookup(), step, said);
}

const Message no_lookup_directory = "Lookup directory not specified";

Message type_with_dir(CommandLine line) {
    const std::string directory = lookup_directories_main().dir.text();
    return directory.empty() ? no_lookup_directory : send(line.path(path_meant(directory)));
}

}  // namespace

Message FileTreeLookup() {
    lookup_directories_tree().open();
    lookup_directories_tree().set_left_footer(list_tree_lookup(stay, Said::result_if_not_empty));
    return {};
}

Message LookupTreeDisplay() { return list_tree_lookup(stay, Said::hint); }
Message LookupTreeUp() { return list_tree_lookup(parent_directory, Said::hint); }
Message LookupTreeSetRoot() { return SetRootDisplay(file_tree_browser().root_directory.text()); }
Message LookupTreeList(const ListEvent& event) { return go_down(tree_lookup(), event); }

void BaseWindowLookup() { lookup_directories_main().open(); }

Message LookupMainDisplay() {
    return list_from_field(
        main_lookup(), [](const std::string& path) { return path.empty() ? "/" : path; }, Said::hint);
}

Message LookupMainCurrent() {
    if (main_window().cwd.text().empty()) {
        return "Current directory not set";
    }
    return list_from_field(
        main_lookup(), [](const std::string& /*path*/) { return main_window().cwd.text(); }, Said::hint);
}

Message LookupMainUp() {
    if (lookup_directories_main().dir.text().empty()) {
        return no_lookup_directory;
    }
    return list_from_field(main_lookup(), parent_directory, Said::hint);
}

Message LookupMainLs() { return type_with_dir(CommandLine("ls -al")); }
Message LookupMainCd() { return type_with_dir(CommandLine("cd")); }
Message LookupMainList(const ListEvent& event) { return go_down(main_lookup(), event); }
