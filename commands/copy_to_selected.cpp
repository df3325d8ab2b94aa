// SPDX-License-Identifier: MIT
// "Copy to Selected": a file that is named, copied into the directory that is selected in the tree.
#include "browsers/browser_work.h"
#include "browsers/file_type.h"
#include "browsers/listed_file.h"
#include "browsers/paths.h"
#include "browsers/tree/file_tree.h"
#include "browsers/tree/walk.h"
#include "commands/notify.h"
#include "shell/file_copy.h"
#include "shell/operands.h"
#include "shell/text.h"
#include "toolkit/long_work.h"
#include "ui/copy_to_selected_directory.h"
#include "ui/file_tree_browser.h"

#include <optional>

#include <sys/stat.h>

namespace {

const WalkRule& one_directory() {
    static constexpr std::string_view wrong = "Specify one destination directory";
    static const WalkRule rule{
        .none = wrong,
        .illegal = "Illegal file",
        .checks = {
            {[](const WalkCounts& counts) { return counts.directories != 1 || counts.files > 0; }, wrong}}};
    return rule;
}

/// What a copy has come to: its result, or nothing where its place was taken.
using Copied = std::optional<CopyResult>;

Message told(Copied copied) {
    if (!copied) {
        return "File already exists";
    }
    if (*copied == COPY_STOPPED) {
        return "Stopped";
    }
    return *copied == COPY_OK ? "" : "Copy error";
}

void copy_into(const WalkedNode& directory, const std::string& source) {
    const std::string name = getfilename(source);
    const std::string target = path_in(directory.path, name);
    start_work(
        copy_to_selected_directory(), copied_bytes,
        [=](Progress& progress) -> Copied {
            return is_there(target) ? Copied() : file_copy(target, source, &progress);
        },
        [=, node = directory.reference](Copied copied) {
            copy_to_selected_directory().set_left_footer(told(copied));
            if (copied == COPY_OK && node.node() != nullptr) {
                const RepaintHold hold(file_tree());
                (void)AddOneLeaf(name, target, file_tree(), node.node(), file_tag(node.node()).group, 0,
                                 file_tree_browser().font_size.value());
            }
        });
}

}  // namespace

Message copy_to_selected() {
    return walk_selection(file_tree_browser(),
                          {.none = "No files selected",
                           .illegal = "Illegal file",
                           .checks = {{[](const WalkCounts& counts) { return counts.directories != 1; },
                                       "Specify one destination directory"}}},
                          [](const std::vector<WalkedNode>& /*nodes*/) -> Message {
                              copy_to_selected_directory().open();
                              return {};
                          });
}

Message CopyToSelectedDir() {
    CopyToSelectedDirectory& window = copy_to_selected_directory();
    const std::string written = window.file_name.text();
    if (written.empty()) {
        return "Source file not specified";
    }
    start_work(
        window, "Files examined",
        [written](Progress& /*progress*/) {
            const std::string source = path_meant(written);
            return std::pair(source, file_mode(source));
        },
        [&window](const auto& found) {
            const auto& [source, mode] = found;
            if (!mode || S_ISDIR(*mode)) {
                window.set_left_footer("Illegal file");
                return;
            }
            const Message refusal = walk_selection(window, one_directory(),
                                                   [source = source](const std::vector<WalkedNode>& nodes) {
                                                       copy_into(directory_among(nodes), source);
                                                       return Message();
                                                   });
            window.set_left_footer(refusal);
        });
    return {};
}
