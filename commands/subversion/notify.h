// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of commands/subversion/, bound to controls by the windows and menus in ui/.

// "Subversion" menu of the tree.
Message SubversionMenuAdd();
void SubversionMenuBranch();
void SubversionMenuCheckout();
Message SubversionMenuCommit();
void SubversionMenuCopy();
Message SubversionMenuDelete();
Message SubversionMenuDiff();
Message SubversionMenuLog();
void SubversionMenuMove();
Message SubversionMenuRevert();
Message SubversionMenuStatusChanges();
Message SubversionMenuStatusAll();
Message SubversionMenuUpdate();

// "Checkout from Repository".
Message SubversionCheckoutButton();
Message SubversionListButton();

// "Subversion Commit" and "Subversion Branch/Tag".
Message Subversion_commit_button();
Message Subversion_branch_button();
