// SPDX-License-Identifier: MIT
#include "browsers/tree/open_node.h"

#include "browsers/listing.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/window_work.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/text.h"
#include "ui/file_list_browser.h"
#include "ui/file_tree_browser.h"

#include <utility>

#include <fmt/printf.h>
#include <sys/stat.h>

namespace {

constexpr std::string_view items_label = "Names read";

void say(std::string_view message) { file_tree_browser().set_left_footer(message); }

TreeFilter filter_of_browser() {
    return {.dot_files = file_tree_browser().show_dot_files.value(),
            .directories_only = file_tree_browser().directories_only.value()};
}

void add_children(TreeNode* node, std::vector<TreeEntry> entries) {
    const FileTag& above = file_tag(node);
    const int font_size = file_tree_browser().font_size.value();
    for (TreeEntry& entry : entries) {
        const mode_t mode = entry.glance.mode;
        add_leaf(file_tree(), node,
                 std::make_unique<FileTag>(std::move(entry.name), "", &above, std::move(entry.glance)), mode,
                 font_size);
    }
}

void show_list(const std::string& /*path*/, int /*count*/) {
    file_list_browser().open();
    say("Files displayed in File List Manager");
}

/// For directories with more entries than the tree is to show.
void hand_over_to_list(const std::string& path) {
    const Message refusal = list_in_browser({.directory = path,
                                             .name = Listing::Name::exact,
                                             .texts = {.too_many = "Too many files to sort"},
                                             .listed = show_list,
                                             .failed = say});
    if (!refusal.empty()) {
        say(refusal);
    }
}

/// What a path turns out to be, and what is in it where that is a directory.
struct Examined {
    std::string path;
    std::string refusal;
    FileGlance glance;
    TreeListing listing;
};

/// The directory that is meant by a root's path, or why there is none.
Examined root_meant(const std::string& written, TreeFilter filter, Progress& progress) {
    Examined root{.path = path_meant(written)};
    if (root.path.empty()) {
        root.refusal = "Illegal file name";
        return root;
    }
    root.path = directory_meant(root.path, startup_dir);
    if (!glance_at(root.path, root.glance)) {
        root.refusal = "Illegal directory";
    } else if (!S_ISDIR(root.glance.mode)) {
        root.refusal = "Not a directory";
    } else {
        root.listing = list_for_tree(root.path, filter, progress);
    }
    return root;
}

/// What stands in the footer is what there is to say.
Message said() { return file_tree_browser().left_footer(); }

Message show_root(Examined root) {
    if (!root.refusal.empty() || root.listing.result == TreeListing::Result::stopped) {
        return root.refusal.empty() ? "Stopped" : root.refusal;
    }
    FileTreeBrowser& browser = file_tree_browser();
    browser.root_directory.set_name(root.path);
    const std::string name = getfilename(root.path);
    {
        const RepaintHold hold(file_tree());
        auto tag = std::make_unique<FileTag>(name.empty() ? root.path : name, root.path, nullptr,
                                             std::move(root.glance));
        tag->is_root = 1;
        TreeNode* const node =
            add_leaf(file_tree(), nullptr, std::move(tag), S_IFDIR, browser.font_size.value());
        GlobalObject = reference_to(node);
        AddInstanceNames(node, std::move(root.listing));
        browser.current_file.set_name(root.path);
    }
    SetupTimerFileTree(centring_delay);
    return said();
}

Message show_opened(TreeNode* node, Examined examined) {
    if (S_ISREG(examined.glance.mode)) {
        return edit_file(examined.path, EditorAsker::file_tree);
    }
    AddInstanceNames(node, std::move(examined.listing));
    SetupTimerFileTree(centring_delay);
    return said();
}

}  // namespace

void AddInstanceNames(TreeNode* node, TreeListing listing) {
    if (listing.result != TreeListing::Result::read) {
        const bool stopped = listing.result == TreeListing::Result::stopped;
        file_tag(node).set_read_error(listing.error);
        say(stopped ? "Stopped" : "Not a directory");
        return;
    }
    const RepaintHold hold(file_tree());
    file_tree().destroy_children(node);
    show_selected_count();
    file_tree().set_opened(node);
    if (listing.displayed > file_tree_browser().max_files.value()) {
        hand_over_to_list(file_tag(node).path());
        return;
    }
    if (listing.is_cut) {
        file_tree_browser().set_right_footer(
            fmt::sprintf("Not all files have been read. Maximum number : %d", TreeListing::most_names));
    }
    add_children(node, std::move(listing.entries));
    say(fmt::sprintf("Total number of files : %d. Files displayed : %d", listing.total, listing.displayed));
}

Message SetRootDisplay(const std::string& path) {
    if (path.empty()) {
        return "Root directory name not specified";
    }
    return work_for(
        file_tree_browser(), items_label,
        [path, filter = filter_of_browser()](Progress& progress) {
            return root_meant(path, filter, progress);
        },
        [](Examined root) { return show_root(std::move(root)); });
}

Message open_node(TreeNode* node) {
    return work_for(
        file_tree_browser(), items_label,
        [path = file_tag(node).path(), filter = filter_of_browser()](Progress& progress) {
            Examined examined{.path = path};
            if (!glance_at(path, examined.glance)) {
                examined.refusal = "Illegal file";
            } else if (!S_ISREG(examined.glance.mode)) {
                examined.listing = list_for_tree(path, filter, progress);
            }
            return examined;
        },
        [reference = reference_to(node)](Examined examined) {
            TreeNode* const still_there = reference.node();
            if (!examined.refusal.empty() || still_there == nullptr) {
                return examined.refusal;
            }
            return show_opened(still_there, std::move(examined));
        });
}
