// SPDX-License-Identifier: MIT
#include "ui/windows.h"

#include "ui/about_window.h"
#include "ui/add_new_directory.h"
#include "ui/add_rename_save.h"
#include "ui/bookmark_definition.h"
#include "ui/bookmarks.h"
#include "ui/checkout_from_repository.h"
#include "ui/clearcase_setup.h"
#include "ui/command_history_manager.h"
#include "ui/command_history_setup.h"
#include "ui/command_list_manager.h"
#include "ui/command_list_setup.h"
#include "ui/command_window.h"
#include "ui/concatenate_files_window.h"
#include "ui/copy_and_rename.h"
#include "ui/copy_files_to_clearcase_vob.h"
#include "ui/copy_to_public_window.h"
#include "ui/copy_to_selected_directory.h"
#include "ui/create_and_attach_label.h"
#include "ui/default_settings.h"
#include "ui/define_label.h"
#include "ui/edit_menu_setup.h"
#include "ui/email_addresses.h"
#include "ui/environment_setup.h"
#include "ui/execute_unix_command.h"
#include "ui/file_list_browser.h"
#include "ui/file_status.h"
#include "ui/file_tree_browser.h"
#include "ui/file_tree_browser_setup.h"
#include "ui/function_keys.h"
#include "ui/generate_file_list.h"
#include "ui/help_window.h"
#include "ui/lookup_directories_main.h"
#include "ui/lookup_directories_tree.h"
#include "ui/main_window.h"
#include "ui/message_board.h"
#include "ui/notebook.h"
#include "ui/pack_unpack_tar.h"
#include "ui/plot_setup.h"
#include "ui/process_information.h"
#include "ui/remote_copy.h"
#include "ui/remote_file_transfer_window.h"
#include "ui/remote_hosts.h"
#include "ui/select_files_window.h"
#include "ui/send_email.h"
#include "ui/status_display.h"
#include "ui/subversion_branch_tag.h"
#include "ui/subversion_commit.h"
#include "ui/text_editor_setup.h"
#include "ui/usb_memory.h"
#include "ui/user_buttons.h"

namespace {

/// Applies `action` to every pop-up's pointer, in the order of creation.
template <typename Action>
void for_each_popup(Action action) {
    action(Orvik_popup1);
    action(Orvik_popup2);
    action(Orvik_popup3);
    action(Orvik_popup4);
    action(Orvik_popup5);
    action(Orvik_popup6);
    action(Orvik_popup7);
    action(Orvik_popup8);
    action(Orvik_popup9);
    action(Orvik_popup21);
    action(Orvik_popup10);
    action(Orvik_popup11);
    action(Orvik_popup12);
    action(Orvik_popup13);
    action(Orvik_popup14);
    action(Orvik_popup15);
    action(Orvik_popup16);
    action(Orvik_popup17);
    action(Orvik_popup18);
    action(Orvik_popup19);
    action(Orvik_popup20);
    action(Orvik_popup22);
    action(Orvik_popup23);
    action(Orvik_popup24);
    action(Orvik_popup25);
    action(Orvik_popup26);
    action(Orvik_popup27);
    action(Orvik_popup28);
    action(Orvik_popup29);
    action(Orvik_popup30);
    action(Orvik_popup31);
    action(Orvik_popup32);
    action(Orvik_popup33);
    action(Orvik_popup34);
    action(Orvik_popup35);
    action(Orvik_popup36);
    action(Orvik_popup37);
    action(Orvik_popup38);
    action(Orvik_popup39);
    action(Orvik_popup40);
    action(Orvik_popup41);
    action(Orvik_popup42);
    action(Orvik_popup43);
    action(Orvik_popup44);
    action(Orvik_popup45);
    action(Orvik_popup46);
    action(Orvik_popup47);
    action(Orvik_popup48);
    action(Orvik_popup49);
}

}  // namespace

void create_main_window() { Orvik_window1 = std::make_unique<MainWindow>(); }

void create_popups() {
    for_each_popup(
        []<typename Window>(std::unique_ptr<Window>& popup) { popup = std::make_unique<Window>(); });
}

void create_windows() {
    create_main_window();
    create_popups();
}

std::vector<Frame*> all_windows() {
    std::vector<Frame*> windows{Orvik_window1.get()};
    for_each_popup([&](const auto& popup) { windows.push_back(popup.get()); });
    return windows;
}

void destroy_windows() {
    for_each_popup([](auto& popup) { popup.reset(); });
    Orvik_window1.reset();
}
