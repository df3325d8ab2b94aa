// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

// The notify procedures of commands/, bound to controls by the windows and menus in ui/.

// "Options" and "More" menus of the tree: what puts files into the selected directory.
Message copy_file();
Message move_file();
Message replace_file();
Message add_link_hard();
Message add_link_symbolic();
Message copy_file_from_list();

// The same: what removes the selection; and the key for that.
Message delete_file();
Message delete_directory();
Message FileTreeRemove();

// The same: what asks for a name, the key for that, and the buttons of the pop-ups.
Message rename_file();
Message rename_directory();
Message FileTreeRename();
Message add_file();
Message add_directory();
Message copy_rename_file();
Message Rename_file_button();
Message Add_file_button();
Message Add_new_directory();
Message CopyAndRenameCopy();

// The same: what brings the selection into the shell's working directory.
Message copy_file_to_work();
Message move_file_to_work();
Message copy_dir_to_work();
Message move_dir_to_work();
