// SPDX-License-Identifier: MIT
// The entries of "Options" and "More" that go by directories or open a window.
#include "browsers/define_bookmark.h"
#include "browsers/file_status.h"
#include "browsers/file_type.h"
#include "browsers/notify.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/open_node.h"
#include "browsers/tree/walk.h"
#include "shell/send.h"
#include "ui/file_status.h"
#include "ui/file_tree_browser.h"
#include "ui/file_tree_browser_setup.h"
#include "ui/select_files_window.h"

namespace {

/// For what is done with one directory.
const WalkRule& one_directory() {
    static const WalkRule rule{
        .none = "No directory selected",
        .illegal = "Illegal directory",
        .checks = {
            {[](const WalkCounts& counts) { return counts.files > 0; }, "Not a directory"},
            {[](const WalkCounts& counts) { return counts.directories != 1; }, "Select one directory"},
        }};
    return rule;
}

Message bookmark(const WalkedNode& node) {
    const FileType type = GetFileType(node.path);
    if (type < 0) {
        return "Illegal file";
    }
    define_bookmark(node.path, type);
    return {};
}

}  // namespace

Message set_directory() {
    return walk_selection(file_tree_browser(), one_directory(), [](const std::vector<WalkedNode>& nodes) {
        return send(CommandLine("cd").path(directory_among(nodes).path), Remember::last_command);
    });
}

Message set_new_root() {
    return walk_selection(file_tree_browser(), one_directory(), [](const std::vector<WalkedNode>& nodes) {
        return SetRootDisplay(directory_among(nodes).path);
    });
}

Message set_parent_root() {
    return walk_selection(file_tree_browser(), one_directory(), [](const std::vector<WalkedNode>& nodes) {
        return SetRootDisplay(parent_directory(directory_among(nodes).path));
    });
}

Message add_bookmark() {
    return walk_selection(file_tree_browser(),
                          {.none = "No file selected",
                           .illegal = "Illegal file",
                           .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1; },
                                       "Select one file to bookmark"}}},
                          [](const std::vector<WalkedNode>& nodes) { return bookmark(nodes.front()); });
}

Message display_status() {
    FileStatus& window = file_status();
    const TreeNode* const node = last_selected();
    if (node == nullptr) {
        window.file_name.set_text("");
        ClearFileStatus();
    } else {
        const FileTag& tag = file_tag(node);
        show_file_status(file_tree_browser(), tag.path(), tag.label);
    }
    window.set_left_footer("");
    window.set_right_footer("Click a file name to display status");
    window.open();
    return {};
}

Message select_files() {
    select_files_window().open();
    return {};
}

void FileTreeBrowserSetupOpen() { file_tree_browser_setup().open(); }
