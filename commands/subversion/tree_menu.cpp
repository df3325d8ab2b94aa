// SPDX-License-Identifier: MIT
// The "Subversion" menu of the tree.
#include "browsers/tree/walk.h"
#include "commands/subversion/notify.h"
#include "shell/send.h"
#include "ui/checkout_from_repository.h"
#include "ui/file_tree_browser.h"
#include "ui/subversion_branch_tag.h"
#include "ui/subversion_commit.h"

#include <algorithm>
#include <cstdint>

#include <sys/stat.h>

namespace {

/// What a subcommand takes what follows an "@" in a name for.
enum class AtSign : std::uint8_t { revision, name };

/// An entry that types a line for the selected file or directory.
struct Entry {
    Words command;
    AtSign at_sign = AtSign::revision;
};

/// Does something with the one selected file or directory.
template <typename Action>
Message with_one(Action action) {
    return walk_selection(
        file_tree_browser(),
        {.none = "No selection made",
         .illegal = "Illegal file",
         .checks = {{[](const WalkCounts& counts) { return counts.directories + counts.files != 1; },
                     "Select one file"}}},
        [action](const std::vector<WalkedNode>& nodes) {
            return action(*std::ranges::find_if(nodes, [](const WalkedNode& node) {
                return S_ISDIR(node.glance.mode) || S_ISREG(node.glance.mode);
            }));
        });
}

Message run(const Entry& entry) {
    return with_one([entry](const WalkedNode& node) {
        CommandLine line(entry.command);
        return send(entry.at_sign == AtSign::name ? line.double_quoted(node.path)
                                                  : line.double_quoted_peg(node.path));
    });
}

}  // namespace

Message SubversionMenuUpdate() { return run({"svn update"}); }
Message SubversionMenuAdd() { return run({"svn add"}); }
Message SubversionMenuDelete() { return run({"svn delete"}); }
/// With an empty revision behind the name, Subversion 1.14 says that there is no such file.
Message SubversionMenuDiff() { return run({"svn diff", AtSign::name}); }
Message SubversionMenuLog() { return run({"svn log"}); }
Message SubversionMenuRevert() { return run({"svn revert"}); }
Message SubversionMenuStatusAll() { return run({"svn status --verbose"}); }
Message SubversionMenuStatusChanges() { return run({"svn status"}); }

void SubversionMenuCheckout() { checkout_from_repository().open(); }
void SubversionMenuCopy() { checkout_from_repository().open(); }
void SubversionMenuMove() { checkout_from_repository().open(); }
void SubversionMenuBranch() { subversion_branch_tag().open(); }

Message SubversionMenuCommit() {
    return with_one([](const WalkedNode& /*node*/) -> Message {
        subversion_commit().open();
        return {};
    });
}
