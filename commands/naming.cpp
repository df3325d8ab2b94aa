// SPDX-License-Identifier: MIT
// What is done under a name that a pop-up asks for: "Add / Rename / Save", "Add New Directory", "Copy and
// Rename".
#include "commands/naming.h"

#include "browsers/paths.h"
#include "browsers/tree/deed.h"
#include "browsers/tree/file_tree.h"
#include "commands/file_deeds.h"
#include "commands/notify.h"
#include "shell/text.h"
#include "ui/add_new_directory.h"
#include "ui/add_rename_save.h"
#include "ui/copy_and_rename.h"
#include "ui/file_tree_browser.h"

#include <algorithm>

#include <sys/stat.h>

namespace {

bool is_not_one_directory(const WalkCounts& counts) { return counts.directories != 1; }
bool is_not_one_file(const WalkCounts& counts) { return counts.files != 1; }

}  // namespace

Message name_fault(const std::string& name, std::string_view missing) {
    if (name.empty()) {
        return Message(missing);
    }
    return name.find('/') == std::string::npos ? "" : "A name can't hold a \"/\"";
}

Message told_twice(Message message) {
    file_tree_browser().set_left_footer(message);
    return message;
}

Message walk_for(Frame& popup, WalkRule rule, WalkAction action) {
    rule.also_tells = &file_tree_browser();
    return told_twice(walk_selection(popup, rule, std::move(action)));
}

namespace {

Message act_on(Frame& popup, const WalkedNode& node, const WalkedNode& directory,
               std::function<Deed(const WalkedNode&)> deed) {
    return act_on_each(popup, {.nodes = {node},
                               .directory = directory,
                               .deed = std::move(deed),
                               .also_tells = &file_tree_browser()});
}

/// Makes something in the selected directory.
Message make_in_selected(Frame& popup, const std::string& name,
                         Deed (*make)(const std::string& directory, const std::string& name)) {
    return walk_for(
        popup, one_parent_directory(), [&popup, name, make](const std::vector<WalkedNode>& nodes) {
            return act_on(popup, nodes.front(), nodes.front(),
                          [name, make](const WalkedNode& directory) { return make(directory.path, name); });
        });
}

const Message root_stays = "Root directory can not be renamed";

bool is_root(const WalkedNode& node) {
    const std::string shown = file_tree_browser().root_directory.text();
    return file_tag(node.reference.node()).is_root != 0 || node.path == shown;
}

/// What may be renamed: one node of a kind.
WalkRule one_to_rename(bool (*is_another)(const WalkCounts& counts), std::string_view message) {
    return {.none = "No file selected",
            .illegal = is_another == is_not_one_directory ? "Illegal directory" : "Illegal file",
            .checks = {{is_another, message},
                       {[](const WalkCounts& counts) { return counts.nodes != 1; }, message}}};
}

Message ask_for_new_name(const std::vector<WalkedNode>& nodes) {
    if (is_root(nodes.front())) {
        return root_stays;
    }
    add_rename_save().new_name.set_name(getfilename(nodes.front().path));
    add_rename_save().open();
    return {};
}

Message give_name(const WalkedNode& node, const std::string& name) {
    if (is_root(node)) {
        return root_stays;
    }
    TreeNode* const parent = file_tree().parent(node.reference.node());
    const WalkedNode directory{.reference = parent == nullptr ? NodeReference() : reference_to(parent),
                               .path = parent_directory(node.path)};
    return act_on(add_rename_save(), node, directory,
                  [path = directory.path, name](const WalkedNode& renamed) {
                      return rename_in({.file = renamed.path, .directory = path}, name);
                  });
}

WalkRule one_copy() {
    return {.none = "No files selected",
            .illegal = "Illegal file",
            .checks = {{is_not_one_directory, "Specify one destination directory"},
                       {is_not_one_file, "Select one file to copy"}}};
}

const WalkedNode& file_among(const std::vector<WalkedNode>& nodes) {
    return *std::ranges::find_if(nodes, [](const WalkedNode& node) { return S_ISREG(node.glance.mode); });
}

Message copy_under(const std::string& name, const std::vector<WalkedNode>& nodes) {
    Message refusal = name_fault(name, "New name not specified");
    if (!refusal.empty()) {
        return refusal;
    }
    const WalkedNode& directory = directory_among(nodes);
    return act_on(copy_and_rename(), file_among(nodes), directory,
                  [path = directory.path, name](const WalkedNode& file) {
                      return copy_as({.file = file.path, .directory = path}, name);
                  });
}

}  // namespace

Message rename_file() {
    return walk_selection(file_tree_browser(), one_to_rename(is_not_one_file, "Select one file to rename"),
                          ask_for_new_name);
}

Message rename_directory() {
    return walk_selection(file_tree_browser(),
                          one_to_rename(is_not_one_directory, "Select one directory to rename"),
                          ask_for_new_name);
}

Message FileTreeRename() {
    const TreeNode* const node = last_selected();
    return node != nullptr && file_tree().is_directory(node) ? rename_directory() : rename_file();
}

Message Rename_file_button() {
    const std::string name = add_rename_save().new_name.text();
    Message refusal = name_fault(name, "New name not defined");
    if (!refusal.empty()) {
        return told_twice(std::move(refusal));
    }
    return walk_for(add_rename_save(),
                    {.none = "No file selected",
                     .illegal = "Illegal file",
                     .checks = {{[](const WalkCounts& counts) { return counts.nodes != 1; },
                                 "Select one file to rename"}}},
                    [name](const std::vector<WalkedNode>& nodes) { return give_name(nodes.front(), name); });
}

Message add_file() {
    add_rename_save().open();
    return {};
}

Message Add_file_button() {
    const std::string name = add_rename_save().new_name.text();
    Message refusal = name_fault(name, "File name not defined");
    return refusal.empty() ? make_in_selected(add_rename_save(), name, make_file)
                           : told_twice(std::move(refusal));
}

Message add_directory() {
    add_new_directory().open();
    return {};
}

Message Add_new_directory() {
    const std::string name = add_new_directory().directory_name.text();
    Message refusal = name_fault(name, "Directory name not defined");
    return refusal.empty() ? make_in_selected(add_new_directory(), name, make_directory)
                           : told_twice(std::move(refusal));
}

Message copy_rename_file() {
    return walk_selection(file_tree_browser(), one_copy(), [](const std::vector<WalkedNode>& nodes) {
        copy_and_rename().new_name.set_name(getfilename(file_among(nodes).path));
        copy_and_rename().open();
        return Message();
    });
}

Message CopyAndRenameCopy() {
    const std::string name = copy_and_rename().new_name.text();
    return walk_for(copy_and_rename(), one_copy(),
                    [name](const std::vector<WalkedNode>& nodes) { return copy_under(name, nodes); });
}
