// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

struct ListEvent;

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

// "Options" and "More" menus: what opens, runs, prints and compares the selected files.
Message archive_files();
Message list_file();
Message edit_file();
Message open_framemaker();
Message open_pdf();
Message open_word();
Message open_html();
Message open_jpg();
Message open_tagtool();
Message open_in_zebra();
Message header_file();
Message print_file();
Message run_bg_file();
Message run_fg_file();
Message vcompare_file();
Message compare_file();
Message start_xterm();
Message execute_command();

// "Execute Unix Command".
Message Execute_unix_command();
Message UnixCommandExecuteBG();

// "Concatenate Files".
Message concatenate_files();
Message ConcatenateRun();

// "Copy To Selected Directory".
Message copy_to_selected();
Message CopyToSelectedDir();

// "USB Memory".
void UsbMemoryOpen();
Message USBmemoryMount();
Message USBmemoryUnmount();
Message USBmemoryDisplay();

// "Remote Hosts".
Message RemoteHostsRlogin();
Message RemoteHostsSsh();
Message RemoteHostsSetDisplay();

// "Remote File Transfer".
Message remote_file_transfer();
Message RemoteFileTransferHost();
Message RemoteFIleTransferCopyToHost();
Message RemoteFIleTransferCopyfromHost();

// "Remote copy" and "Copy to Public".
Message copy_file_remote();
Message Copy_to_remote_button();
Message Copy_from_remote_button();
Message copy_to_public();
Message CopyToPublicCopy();

// "Pack / Unpack Using Tar".
Message make_tar_file();
Message PackUnpackGetDestDir();
Message MakeTarFileRun();
Message PackUnpackUsingTarUnpack();
Message PackUnpackGzip();
Message PackUnpackGunzip();

// "Send Email" and "Email Addresses".
Message send_file();
Message SendMailClear();
Message SendFIleAddresses();
Message SendFIleSendButton();
Message EmailAddressesEdit();
Message EmailAddressesLoad();
Message EmailAddressesSave();
Message EmailAddressesSort();
Message EmailaAddressesList(const ListEvent& event);
