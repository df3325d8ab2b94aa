// SPDX-License-Identifier: MIT
// "Root Directory:" and "Current File:": what fills them and what they do.
#include "browsers/notify.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/open_node.h"
#include "browsers/window_work.h"
#include "shell/operands.h"
#include "shell/process.h"
#include "shell/selected_text.h"
#include "shell/send.h"
#include "ui/file_tree_browser.h"
#include "ui/main_window.h"

#include <sys/stat.h>

namespace {

constexpr std::string_view items_label = "Files examined";

/// "Root Directory:" as its user means it, and whether that is there.
struct RootField {
    std::string path;
    bool is_there = false;
};

/// The directory of "Current File:", or why there is none.
struct CurrentDirectory {
    std::string path;
    Message refusal;
};

CurrentDirectory current_directory(const std::string& written) {
    FileGlance glance;
    CurrentDirectory directory{.path = path_meant(written)};
    if (!glance_at(directory.path, glance)) {
        directory.refusal = "Illegal directory";
    } else if (!S_ISDIR(glance.mode)) {
        directory.refusal = "Not a directory";
    }
    return directory;
}

Message fill_root_directory(const std::string& path) {
    if (path.empty()) {
        return "Directory name not specified";
    }
    file_tree_browser().root_directory.set_name(path);
    return {};
}

}  // namespace

Message SetRootCurrentDirectory() { return fill_root_directory(main_window().cwd.text()); }

Message FileTreeBrowserSerParent() {
    const std::string directory = main_window().cwd.text();
    return fill_root_directory(directory.empty() ? directory : parent_directory(directory));
}

Message Set_directory_selected() {
    const SelectedText selected = selected_name(selection_for_button);
    return selected ? fill_root_directory(path_meant(selected.text)) : selected.refusal;
}

Message Select_home_root() { return fill_root_directory(home_dir); }

Message FileTreeSetRoot() { return SetRootDisplay(file_tree_browser().root_directory.text()); }

Message FileTreeSetRootCurrentFile() { return SetRootDisplay(file_tree_browser().current_file.text()); }

Message SetBookmarkRoot(const std::string& path) { return path.empty() ? "" : SetRootDisplay(path); }

Message FileTreeUp() {
    const std::string written = file_tree_browser().root_directory.text();
    return work_for(
        file_tree_browser(), items_label,
        [written](Progress& /*progress*/) {
            FileGlance glance;
            RootField root{.path = directory_meant(path_meant(written), startup_dir)};
            root.is_there = glance_at(root.path, glance);
            return root;
        },
        [](const RootField& root) -> Message {
            if (root.path.empty()) {
                return "Illegal file name";
            }
            file_tree_browser().root_directory.set_name(root.is_there ? parent_directory(root.path)
                                                                      : root.path);
            return root.is_there ? "" : "Illegal directory";
        });
}

Message FileTreeSetDirectory() {
    const std::string written = file_tree_browser().current_file.text();
    if (written.empty()) {
        return "Directory name not specified";
    }
    return work_for(
        file_tree_browser(), items_label,
        [written](Progress& /*progress*/) { return current_directory(written); },
        [](const CurrentDirectory& directory) {
            return directory.refusal.empty()
                       ? send(CommandLine("cd").double_quoted(directory.path), Remember::last_command)
                       : directory.refusal;
        });
}
