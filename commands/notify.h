// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of commands/, bound to controls by the windows and menus in ui/.

// "Options" menu of the tree: what brings the selection into the shell's working directory.
Message copy_file_to_work();
Message move_file_to_work();
Message copy_dir_to_work();
Message move_dir_to_work();
