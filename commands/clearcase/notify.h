// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of commands/clearcase/, bound to controls by the windows and menus in ui/.

// "ClearCase" menu of the tree.
Message ClearCasemenuDisplayConfigSpec();
Message ClearcaseMenuSetConfigSpec();
Message ClearCaseMenuSetConfigSpecDefault();
Message ClearCaseMenuCheckInNoCom();
Message ClearCaseMenuCheckOut();
Message ClearcaseMenuCopyFilesToVob();
Message ClearCaseMenuhistory();
Message ClearCaseMenuListFiles();
Message ClearCaseMenuListAllFiles();
Message ClearCaseMenuListCo();
Message ClearcaseMenuListCheckoutMine();
Message ClearcaseMenuListPrivate();
Message FileTreeClearCaseMenuMakeDir();
Message ClearCaseMenuMakeElement();
Message ClearcaseMenuMakeElementNc();
Message ClearCaseMoveFile();
Message FileTreeClearCaseMenuRemovElem();
Message ClearCaseMenuRenameFile();
void ClearCaseMenu1SetLabel();
Message ClearCaseMenuUncheckout();

// "ClearCase" menu of the list.
Message FileListLoadConfigSpec();
Message ClearCaseMenu2Checkin();
Message ClearCaseMenu2Checkout();
Message ClearCaseMenu2History();
Message ClearCaseMenu2ListFIles();
Message ClearCaseMenu2MakeElem();
Message ClearCaseMenu2RemoveElem();
Message ClearCaseMenu2Uncheckout();

// "Add / Rename / Save" and "Add New Directory".
Message ClearCaseRename();
Message AddClearCaseDir();

// "Create and Attach Label".
Message CreateAndSetLabelDisplay();
Message CreateAndSetLabelFind();
Message CreateAndSetCreate();
Message CreateSetLabelAttach();
Message CreateAndAttachRemove();

// "Copy Files to Clearcase Vob".
Message ClearcaseMenuCopyFilesToVobGet();
Message CopyFilesToClearcaseVobEdit();
Message ClearcaseMenuCopyFIlesToVobRun();
