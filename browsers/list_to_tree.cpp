// SPDX-License-Identifier: MIT
// What the "File List Browser" gives to the tree: a root, and copies of its file.
#include "browsers/browser_work.h"
#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "browsers/notify.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/open_node.h"
#include "browsers/tree/walk.h"
#include "shell/file_copy.h"
#include "shell/text.h"
#include "ui/file_tree_browser.h"
#include "ui/file_tree_browser_setup.h"

#include <sys/stat.h>

namespace {

Message make_root(const std::string& path, std::optional<mode_t> mode) {
    if (!mode || !S_ISDIR(*mode)) {
        return mode ? "Not a directory" : "Illegal directory";
    }
    const std::string directory = remove_trailing_slashes(path);
    file_tree_browser().open();
    (void)SetRootDisplay(directory.empty() ? "/" : directory);  // the tree's footer tells what comes of it
    return {};
}

const WalkRule& one_destination() {
    static const WalkRule rule{.none = "No destination directory selected",
                               .illegal = "Illegal file",
                               .checks = {
                                   {[](const WalkCounts& counts) { return counts.directories != 1; },
                                    "Specify one destination directory"},
                                   {[](const WalkCounts& counts) { return counts.files > 0; },
                                    "Source file selected in file list manager"},
                               }};
    return rule;
}

/// A copy that has got a name which was free; none when there was none.
struct NamedCopy {
    std::string name;
    CopyResult result = COPY_FAILED;
};

NamedCopy copy_into(const std::string& directory, const ListedFile& source, Progress& progress) {
    const std::optional<std::string> name = name_for_copy(directory, source.name);
    if (!name) {
        return {};
    }
    return {.name = *name, .result = file_copy(path_in(directory, *name), source.path, &progress)};
}

Message show_copy(const NamedCopy& copy, const WalkedNode& directory) {
    if (copy.name.empty()) {
        return "File alrerady exists";
    }
    if (copy.result != COPY_OK) {
        return copy.result == COPY_STOPPED ? "Stopped" : "Copy error";
    }
    if (TreeNode* const node = directory.reference.node()) {
        const RepaintHold hold(file_tree());
        (void)AddOneLeaf(copy.name, path_in(directory.path, copy.name), file_tree(), node,
                         file_tag(node).group, 0, file_tree_browser_setup().font_size.value());
    }
    return {};
}

Message copy_to_destination(const ListedFile& source, const WalkedNode& directory) {
    return work_in_browser(
        copied_bytes, [=](Progress& progress) { return copy_into(directory.path, source, progress); },
        [directory](const NamedCopy& copy) { return show_copy(copy, directory); });
}

}  // namespace

Message FileListBrowserSetRoot() {
    const std::string directory = file_list_browser().directory.text();
    const ListedFile file = listed_file();
    if (directory.empty()) {
        return file.refusal;
    }
    return ask_disk([path = file ? file.path : directory] { return std::pair(path, file_mode(path)); },
                    [](const auto& found) { return make_root(found.first, found.second); });
}

Message FileListBrowserCopyToTree() {
    const ListedFile source = listed_file(
        {.directory = "Source directory name not specified", .name = "Source file name not specified"});
    if (!source) {
        return source.refusal;
    }
    return ask_disk([path = source.path] { return file_mode(path); },
                    [source](std::optional<mode_t> mode) -> Message {
                        if (!mode || S_ISDIR(*mode)) {
                            return mode ? "Source file can't be a directory" : "Illegal source file";
                        }
                        return walk_selection(file_list_browser(), one_destination(),
                                              [source](const std::vector<WalkedNode>& nodes) {
                                                  return copy_to_destination(source, directory_among(nodes));
                                              });
                    });
}
