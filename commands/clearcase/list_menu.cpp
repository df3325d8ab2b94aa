// SPDX-License-Identifier: MIT
// The "ClearCase" menu of the "File List Browser".
#include "browsers/listed_file.h"
#include "commands/clearcase/notify.h"
#include "commands/clearcase/tool.h"

namespace {

/// Types a command for the file that is named in the browser.
Message run(Words command) {
    const ListedFile file =
        listed_file({.directory = "Directory name not specified", .name = "File name not specified"});
    return file ? ToolLine(command).path(file.path).type() : file.refusal;
}

}  // namespace

Message FileListLoadConfigSpec() { return run("setcs"); }
Message ClearCaseMenu2Checkin() { return run("checkin -nc"); }
Message ClearCaseMenu2Checkout() { return run("checkout -nc"); }
Message ClearCaseMenu2History() { return run("lshistory"); }
Message ClearCaseMenu2ListFIles() { return run("ls"); }
Message ClearCaseMenu2MakeElem() { return run("mkelem"); }
Message ClearCaseMenu2RemoveElem() { return run("rmelem"); }
Message ClearCaseMenu2Uncheckout() { return run("uncheckout"); }
