// SPDX-License-Identifier: MIT
// What clicks on nodes do, and moving along the tree.
#include "browsers/file_status.h"
#include "browsers/notify.h"
#include "browsers/tree/centring.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/open_node.h"
#include "toolkit/application.h"
#include "ui/file_tree_browser.h"

#include <limits>

namespace {

bool is_root(const TreeNode* node) { return file_tag(node).is_root == 1; }

void show_as_current_file(const TreeNode* node) {
    file_tree_browser().current_file.set_name(file_tag(node).path());
}

/// Centres the view on a node.
void go_to(TreeNode* node) {
    GlobalObject = reference_to(node);
    DisplaySelectedModule();
}

/// Goes from the selected node to another one, which is selected then.
void move_selection(TreeNode* from, TreeNode* to) {
    file_tree().deselect(from);
    file_tree().select(to);
    file_tree().set_current(to);
    go_to(to);
    show_as_current_file(to);
    show_selected_count();
}

/// The one selected node for an action that needs exactly one; without it, the refusal says why not.
struct OneNode {
    TreeNode* node = nullptr;
    Message refusal;
};

OneNode one_node(std::string_view several) {
    TreeNode* const node = only_selected();
    if (node != nullptr) {
        return {.node = node};
    }
    return {.refusal = Message(file_tree().selected_count() == 0 ? "No instance selected" : several)};
}

const Message at_root = "Already at the root";
const Message nothing_selected = "No selection made";

/// The same for a node that has another one above.
OneNode one_node_below(std::string_view several) {
    OneNode one = one_node(several);
    if (one.node != nullptr && is_root(one.node)) {
        return {.refusal = at_root};
    }
    return one;
}

/// Scrolls by so many units, at most as far as there is something.
Message scroll(int right, int down) {
    file_tree().set_view_start(stepped_start(file_tree().horizontal(), right),
                               stepped_start(file_tree().vertical(), down));
    return {};
}

constexpr int columns = 40;
constexpr int lines = 20;
constexpr int all_the_way = std::numeric_limits<int>::max() / 2;

}  // namespace

void FileTreeSelectionChanged() { show_selected_count(); }

Message FileTreeClick() {
    TreeNode* const node = last_selected();
    if (node != nullptr) {
        show_as_current_file(node);
        TraceObjects.begin(reference_to(node));
        show_file_status(file_tree_browser(), file_tag(node).path(), file_tag(node).label);
    }
    return {};
}

Message FileTreeDoubleClick() {
    TreeNode* const node = last_selected();
    if (node == nullptr) {
        return {};
    }
    GlobalObject = reference_to(node);
    if (file_tree().selected_count() > 1) {
        window_bell();
        return "Clear all other selection";
    }
    return open_node(node);
}

Message FileTreeGoBack() {
    const OneNode from = one_node_below("Selected one instance to trace back");
    if (from.node == nullptr) {
        return from.refusal;
    }
    TreeNode* const parent = file_tree().parent(from.node);
    move_selection(from.node, parent);
    return TraceObjects.step_back(reference_to(parent)) ? "" : "Can't store more traces";
}

Message FileTreeGoForward() {
    const OneNode from = one_node("Selected one instance to trace forward");
    if (from.node == nullptr) {
        return from.refusal;
    }
    if (TraceObjects.at_end()) {
        return "End of trace";
    }
    TreeNode* const target = TraceObjects.next().node();
    if (target == nullptr) {
        return "The instance is no longer displayed";
    }
    move_selection(from.node, target);
    TraceObjects.step_forward();
    return {};
}

Message FileTreeTraceBack() {
    const OneNode from = one_node_below("Selected one instance to trace back");
    TreeNode* node = from.node;
    while (node != nullptr && !is_root(node)) {
        node = file_tree().parent(node);
        file_tree().select(node);
    }
    show_selected_count();
    return from.refusal;
}

Message FileTreeFindSelection() {
    TreeNode* const node = last_selected();
    if (node == nullptr) {
        return nothing_selected;
    }
    go_to(node);
    return {};
}

Message FileTreeFindRoot() {
    TreeNode* const node = last_selected();
    if (node == nullptr) {
        return nothing_selected;
    }
    TreeNode* const root = GetRootObject(node);
    if (root == nullptr) {
        return at_root;
    }
    go_to(root);
    return {};
}

Message FileTreeSelectAll() {
    const std::vector<TreeNode*> selected = rectobj_get_selected_list(file_tree());
    for (TreeNode* node : selected) {
        SelectAllNodes(node);
    }
    show_selected_count();
    return selected.empty() ? "No instance selected" : "";
}

Message FileTreeScrollUpperLeft() { return scroll(-all_the_way, -all_the_way); }
Message FileTreeScrollUpperRight() { return scroll(all_the_way, -all_the_way); }
Message FileTreeScrollLowerLeft() { return scroll(-all_the_way, all_the_way); }
Message FileTreeScrollLowerRight() { return scroll(all_the_way, all_the_way); }
Message FileTreeScrollRight() { return scroll(columns, 0); }
Message FileTreeScrollLeft() { return scroll(-columns, 0); }
Message FileTreeScrollUp() { return scroll(0, -lines); }
Message FileTreeScrollDown() { return scroll(0, lines); }
