// SPDX-License-Identifier: MIT
// Taking nodes off the tree, and drawing it anew.
#include "browsers/notify.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/walk.h"
#include "ui/file_tree_browser.h"

#include <algorithm>
#include <iterator>

namespace {

/// Nodes go with all below them, which may be selected too.
void destroy_selected() {
    std::vector<NodeReference> selected;
    std::ranges::transform(rectobj_get_selected_list(file_tree()), std::back_inserter(selected),
                           [](TreeNode* node) { return reference_to(node); });
    for (const NodeReference& reference : selected) {
        if (TreeNode* const node = reference.node()) {
            file_tree().destroy(node);
        }
    }
}

/// The node itself comes back, unopened, at its place among its siblings.
Message cut(const WalkedNode& walked) {
    TreeNode* const node = walked.reference.node();
    TreeNode* const parent = file_tree().parent(node);
    const int position = file_tree().position_among_siblings(node);
    const FileTag& old = file_tag(node);
    const FileTag* const above = parent == nullptr ? nullptr : &file_tag(parent);
    auto tag = std::make_unique<FileTag>(old.label, old.own_path(), above, walked.glance);
    tag->group = old.group;
    tag->is_root = old.is_root;
    const int right = file_tree().horizontal().view_start;
    const int down = file_tree().vertical().view_start;
    {
        const RepaintHold hold(file_tree());
        file_tree().destroy(node);
        add_leaf(file_tree(), parent, std::move(tag), walked.glance.mode,
                 file_tree_browser().font_size.value(), position);
    }
    file_tree().set_view_start(right, down);
    show_selected_count();
    return {};
}

}  // namespace

Message Clear_tree() {
    if (file_tree().selected_count() == 0) {
        return "No tree selected";
    }
    file_tree_browser().current_file.set_text("");
    const RepaintHold hold(file_tree());
    destroy_selected();
    show_selected_count();
    return {};
}

Message FileTreeClearAll() {
    file_tree_browser().current_file.set_text("");
    const std::vector<TreeNode*> roots = file_tree().roots();
    const RepaintHold hold(file_tree());
    for (TreeNode* root : roots) {
        file_tree().destroy(root);
    }
    show_selected_count();
    return roots.empty() ? "No file trees displayed" : "";
}

Message FileTreeRefresh() {
    const RepaintHold hold(file_tree());
    return {};
}

Message clear_branch() {
    return walk_selection(file_tree_browser(),
                          {.none = "No branch selected",
                           .illegal = "Illegal file",
                           .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1; },
                                       "Select one branch to cut"}}},
                          [](const std::vector<WalkedNode>& nodes) { return cut(nodes.front()); });
}
