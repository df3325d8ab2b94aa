// SPDX-License-Identifier: MIT
// What removes the selected files or directories, after a notice that lists them.
#include "browsers/tree/deed.h"
#include "browsers/tree/file_tree.h"
#include "commands/file_deeds.h"
#include "commands/notify.h"
#include "toolkit/notice.h"
#include "ui/file_tree_browser.h"

#include <algorithm>

#include <fmt/format.h>

namespace {

/// An entry of the menu.
struct Entry {
    std::string_view none;
    std::string_view question;
    std::string_view illegal;
    Deed (*deed)(const WalkedNode& node);
};

constexpr Entry removing_files{"No files selected", "Remove file(s) ?", "Illegal file", remove_file};
constexpr Entry removing_directories{"No directory selected", "Remove directory ?", "Illegal directory",
                                     remove_directory};

/// What would go, in a few lines.
std::vector<std::string> named(const std::vector<WalkedNode>& nodes) {
    constexpr std::size_t most_names = 10;
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < std::min(nodes.size(), most_names); ++i) {
        lines.push_back(nodes[i].path);
    }
    if (nodes.size() > most_names) {
        lines.push_back(fmt::format("and {} more", nodes.size() - most_names));
    }
    return lines;
}

/// Only what was listed goes, whatever is selected by the time of the answer.
Message remove(const Entry& entry) {
    std::vector<WalkedNode> selected = selected_nodes();
    if (!selected.empty() && !agreed(file_tree_browser(), entry.question, named(selected))) {
        return {};
    }
    return walk(file_tree_browser(), {.none = entry.none, .illegal = entry.illegal}, std::move(selected),
                [&entry](const std::vector<WalkedNode>& nodes) {
                    return act_on_each(file_tree_browser(),
                                       {.nodes = nodes, .deed = entry.deed, .illegal = entry.illegal});
                });
}

}  // namespace

Message delete_file() { return remove(removing_files); }

Message delete_directory() { return remove(removing_directories); }

Message FileTreeRemove() {
    const std::vector<TreeNode*> selected = rectobj_get_selected_list(file_tree());
    const bool only_directories =
        !selected.empty() &&
        std::ranges::all_of(selected, [](const TreeNode* node) { return file_tree().is_directory(node); });
    return only_directories ? delete_directory() : delete_file();
}
