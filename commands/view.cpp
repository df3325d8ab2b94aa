// SPDX-License-Identifier: MIT
// The entries of the tree's menus that look at the selected files, edit and print them.
#include "browsers/head.h"
#include "commands/each_node.h"
#include "commands/notify.h"
#include "shell/background.h"
#include "shell/editor.h"
#include "shell/operands.h"
#include "shell/print.h"
#include "shell/viewer.h"
#include "toolkit/long_work.h"
#include "ui/default_settings.h"
#include "ui/file_tree_browser.h"

#include <optional>

namespace {

Message view_with(Viewer viewer) {
    return with_each_file(file_tree_browser(),
                          [viewer](const WalkedNode& node) { return view_file(viewer, node.path); });
}

/// The heads of files up to the first one that has none.
std::vector<Head> heads_of(const std::vector<std::string>& paths, Progress& progress) {
    std::vector<Head> heads;
    for (const std::string& path : paths) {
        heads.push_back(head_of(path));
        if (!heads.back().refusal.empty() || !progress.next()) {
            break;
        }
    }
    return heads;
}

void show_heads(const std::vector<Head>& heads) {
    for (const Head& head : heads) {
        file_tree_browser().set_left_footer(show_head(head));
    }
}

/// Prints files. The placeholders of the user's command are filled once: where it has some, the first file's
/// command is given for each of the others too.
Message print(const std::vector<WalkedNode>& nodes) {
    const std::string users_command = default_settings().print_command.text();
    std::optional<std::string> command;
    return do_with_each(nodes, S_IFREG, "Not a regular file", [&](const WalkedNode& node) -> Message {
        const std::string name = getfilename(node.path);
        if (!command || users_command.empty()) {
            command = print_command(users_command, node.path, name);
        }
        if (!command) {
            return name_refusal(name);
        }
        run_in_background(CommandLine::of_user(*command), print_ampersand(users_command));
        return {};
    });
}

}  // namespace

Message archive_files() { return view_with(Viewer::pager); }
Message list_file() { return view_with(Viewer::pager); }
Message open_framemaker() { return view_with(Viewer::framemaker); }
Message open_pdf() { return view_with(Viewer::pdf); }
Message open_word() { return view_with(Viewer::office); }
Message open_html() { return view_with(Viewer::html); }
Message open_jpg() { return view_with(Viewer::picture); }
Message open_tagtool() { return view_with(Viewer::sgml); }
Message open_in_zebra() { return view_with(Viewer::zebra); }

Message edit_file() {
    if (!has_editor()) {
        return no_editor;
    }
    return with_each_file(file_tree_browser(), [](const WalkedNode& node) { return edit_file(node.path); });
}

Message header_file() {
    return walk_selection(file_tree_browser(), {.none = "No files selected", .illegal = "Illegal file"},
                          [](const std::vector<WalkedNode>& nodes) -> Message {
                              std::vector<std::string> paths;
                              for (const WalkedNode& node : nodes) {
                                  paths.push_back(node.path);
                              }
                              start_work(
                                  file_tree_browser(), "Files read",
                                  [paths](Progress& progress) { return heads_of(paths, progress); },
                                  [](const std::vector<Head>& heads) { show_heads(heads); });
                              return {};
                          });
}

Message print_file() {
    return walk_selection(file_tree_browser(), {.none = "No files selected", .illegal = "Illegal file"},
                          print);
}
