// SPDX-License-Identifier: MIT
// The items of the main window's menus that open windows.
#include "app/notify.h"
#include "browsers/notify.h"
#include "ui/bookmarks.h"
#include "ui/clearcase_setup.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/command_list_setup.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/edit_menu_setup.h"
#include "ui/environment_setup.h"
#include "ui/file_list_browser.h"
#include "ui/file_tree_browser.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/process_information.h"
#include "ui/remote_hosts.h"
#include "ui/status_display.h"
#include "ui/text_editor_setup.h"
#include "ui/user_buttons.h"

void SetupMenuBookmarks() { bookmarks().open(); }
void SetupMenuClearCase() { clearcase_setup().open(); }
void SetupMenuCommandList() { command_list_setup().open(); }
void SetupMenuCommandHistory() { command_history_setup().open(); }
void Default_settings_popup() { default_settings().open(); }
void Environment_setup_window() { environment_setup().open(); }
void Open_icon_label() { define_label().open(); }
void Process_display_window() { process_information().open(); }
void SetupMenuRemoteHosts() { remote_hosts().open(); }
void SetupMenuStatusDisplay() { status_display().open(); }
void Text_editor_setup() { text_editor_setup().open(); }
void SetupMenuUserButtons() { user_buttons().open(); }

void Start_file_tree() { file_tree_browser().open(); }
void BrowseMenuFullSize() { (void)FileTreeFullSize(); }
void Start_file_manager() { file_list_browser().open(); }
/// Opens at the newest commands; one that is open stays where its user has scrolled it.
void BrowserMenuCommandHistory() {
    CommandHistoryManager& manager = command_history_manager();
    const bool was_shown = manager.shown();
    manager.open();
    if (!was_shown) {
        manager.list.go_to(manager.list.rows() - 1);
    }
}
void Browse_mess_board() { message_board().open(); }
void BrowseMenuNoteBook() { notebook().open(); }

void Edit_menu_setup() { edit_menu_setup().open(); }
