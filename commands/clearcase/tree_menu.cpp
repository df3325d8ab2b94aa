// SPDX-License-Identifier: MIT
// The "ClearCase" menu of the tree: the entries that type a command for what is selected, or for the view.
#include "commands/clearcase/notify.h"
#include "commands/clearcase/runner.h"
#include "commands/notify.h"
#include "shell/process.h"
#include "ui/create_and_attach_label.h"
#include "ui/file_tree_browser.h"

namespace {

/// An entry that types a line for each selected node.
struct Entry {
    Words command;
    ClearCaseKind kind = ClearCaseKind::any;
    std::size_t count = any_number;
};

Message run(const Entry& entry) {
    return ExecuteClearCaseCommand(file_tree_browser(), ToolLine(entry.command), entry.kind, entry.count);
}

constexpr ClearCaseKind files = ClearCaseKind::files;
constexpr ClearCaseKind directories = ClearCaseKind::directories;
constexpr ClearCaseKind any = ClearCaseKind::any;

}  // namespace

Message ClearCaseMenuCheckInNoCom() { return run({"checkin -nc", any}); }
Message ClearCaseMenuCheckOut() { return run({"checkout -nc", any}); }
Message ClearCaseMenuUncheckout() { return run({"uncheckout -rm", any}); }
Message ClearCaseMenuhistory() { return run({"lshistory", any}); }
Message ClearCaseMenuMakeElement() { return run({"mkelem", files, 1}); }
Message ClearcaseMenuMakeElementNc() { return run({"mkelem -nc", files}); }
Message FileTreeClearCaseMenuRemovElem() { return run({"rmelem", any, 1}); }
Message ClearCaseMenuListFiles() { return run({"ls", directories}); }
Message ClearCaseMenuListAllFiles() { return run({"ls -recurse", directories}); }
Message ClearcaseMenuListPrivate() { return run({"ls -r -vie", directories}); }
Message ClearCaseMenuListCo() { return run({"lscheckout -recurse", directories}); }
Message ClearcaseMenuSetConfigSpec() { return run({"setcs", files, 1}); }

Message ClearcaseMenuListCheckoutMine() {
    return ExecuteClearCaseCommandUser(file_tree_browser(), ToolLine("lscheckout -recurse"), directories,
                                       user_name);
}

Message ClearCasemenuDisplayConfigSpec() { return ToolLine("catcs").type(); }
Message ClearCaseMenuSetConfigSpecDefault() { return ToolLine("setcs -default").type(); }

Message FileTreeClearCaseMenuMakeDir() { return add_directory(); }
Message ClearCaseMenuRenameFile() { return rename_file(); }
void ClearCaseMenu1SetLabel() { create_and_attach_label().open(); }
