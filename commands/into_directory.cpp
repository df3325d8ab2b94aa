// SPDX-License-Identifier: MIT
// What puts the selected files of the tree, or the file of the "File List Browser", into the selected
// directory.
#include "commands/into_directory.h"

#include "browsers/listed_file.h"
#include "browsers/tree/deed.h"
#include "commands/file_deeds.h"
#include "commands/notify.h"
#include "ui/file_tree_browser.h"

#include <sys/stat.h>

namespace {

bool is_not_one_directory(const WalkCounts& counts) { return counts.directories != 1; }
bool is_without_files(const WalkCounts& counts) { return counts.files == 0; }
bool is_not_one_file(const WalkCounts& counts) { return counts.files != 1; }
bool has_files(const WalkCounts& counts) { return counts.files > 0; }

/// An entry of the menu.
struct Entry {
    WalkCheck directory{is_not_one_directory, "Specify one destination directory"};
    WalkCheck files;
    Deed (*deed)(const FileAndDirectory& at);
    std::string_view meanwhile = {};
    std::string_view finished = {};
    std::string_view none = "No files selected";
    std::string_view illegal = "Illegal file";
};

constexpr Entry copying{.files = {is_without_files, "No files to copy"}, .deed = copy_into};
constexpr Entry moving{.files = {is_without_files, "No files to move"}, .deed = move_into};
constexpr Entry replacing{.files = {is_without_files, "No files selected"},
                          .deed = replace_in,
                          .meanwhile = "Replacing",
                          .finished = "Double-click to refresh directory"};
constexpr WalkCheck one_place_for_link{is_not_one_directory, "Specify one directory where to put the link"};
constexpr WalkCheck one_file_to_link{is_not_one_file, "Specify one file to link"};
constexpr Entry hard_linking{.directory = one_place_for_link, .files = one_file_to_link, .deed = link_into};
constexpr Entry symbolic_linking{
    .directory = one_place_for_link, .files = one_file_to_link, .deed = link_symbolically_into};

constexpr std::string_view no_file_in_list = "Select source file from file list browser";
constexpr Entry copying_from_list{
    .files = {has_files, no_file_in_list}, .deed = copy_into, .none = "No destination directory selected"};

WalkRule rule_of(const Entry& entry) {
    return {.none = entry.none, .illegal = entry.illegal, .checks = {entry.directory, entry.files}};
}

/// Puts files into a directory, as the entry does.
Message put(const Entry& entry, std::vector<WalkedNode> files, const WalkedNode& directory,
            std::string_view illegal) {
    return act_on_each(
        file_tree_browser(),
        {.nodes = std::move(files),
         .directory = directory,
         .deed = [deed = entry.deed, path = directory.path](
                     const WalkedNode& file) { return deed({.file = file.path, .directory = path}); },
         .illegal = illegal,
         .meanwhile = entry.meanwhile,
         .finished = entry.finished});
}

Message put_selected(const Entry& entry) {
    return walk_selection(file_tree_browser(), rule_of(entry), [&entry](std::vector<WalkedNode> nodes) {
        const WalkedNode directory = directory_among(nodes);
        std::erase_if(nodes, [](const WalkedNode& node) { return !S_ISREG(node.glance.mode); });
        return put(entry, std::move(nodes), directory, entry.illegal);
    });
}

}  // namespace

Message copy_file() { return put_selected(copying); }

WalkRule rule_for_moving() { return rule_of(moving); }

Message move_file() { return put_selected(moving); }

Message replace_file() { return put_selected(replacing); }

Message add_link_hard() { return put_selected(hard_linking); }

Message add_link_symbolic() { return put_selected(symbolic_linking); }

Message copy_file_from_list() {
    const ListedFile source =
        listed_file({.directory = "Source directory not defined", .name = "Source file name not defined"});
    if (!source) {
        return source.refusal;
    }
    return walk_selection(file_tree_browser(), rule_of(copying_from_list),
                          [path = source.path](const std::vector<WalkedNode>& nodes) {
                              WalkedNode file{.path = path};
                              file.glance.mode = S_IFREG;  // what it has to be
                              return put(copying_from_list, {file}, directory_among(nodes), no_file_in_list);
                          });
}
