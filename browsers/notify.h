// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

// The notify procedures of browsers/, bound to controls by the windows, and to entries of menus made at run
// time.

// "File Status".
Message Set_permissions();

// "File List Browser", "BM" menu.
Message SetBookmarkFileListDir(const std::string& path);
