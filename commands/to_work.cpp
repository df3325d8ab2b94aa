// SPDX-License-Identifier: MIT
// What brings the selected files or directories of the tree into the shell's working directory: one typed
// line for each.
#include "browsers/tree/walk.h"
#include "commands/notify.h"
#include "shell/send.h"
#include "ui/file_tree_browser.h"

#include <sys/stat.h>

namespace {

/// What may be brought there, and the messages about it.
struct Kind {
    mode_t type;
    std::string_view none;
    std::string_view illegal;
    std::string_view another;
};

constexpr Kind files{S_IFREG, "No files selected", "Illegal file", "Not a regular file"};
constexpr Kind directories{S_IFDIR, "No file selected", "Illegal directory", "Not a directory"};

Message type_for_each(const std::vector<WalkedNode>& nodes, const Kind& kind, Words command) {
    for (const WalkedNode& node : nodes) {
        if ((node.glance.mode & S_IFMT) != kind.type) {
            return Message(kind.another);
        }
        Message refusal = send(CommandLine(command).path(node.path).word("."), Remember::last_command);
        if (!refusal.empty()) {
            return refusal;
        }
    }
    return {};
}

Message to_work(const Kind& kind, Words command) {
    return walk_selection(file_tree_browser(), {.none = kind.none, .illegal = kind.illegal},
                          [&kind, command](const std::vector<WalkedNode>& nodes) {
                              return type_for_each(nodes, kind, command);
                          });
}

}  // namespace

Message copy_file_to_work() { return to_work(files, "cp"); }

Message move_file_to_work() { return to_work(files, "mv"); }

Message copy_dir_to_work() { return to_work(directories, "cp -r"); }

Message move_dir_to_work() { return to_work(directories, "mv"); }
