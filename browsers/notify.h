// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

struct ListEvent;

// The notify procedures of browsers/, bound to controls by the windows, and to entries of menus made at run
// time.

// "File Status".
Message Set_permissions();

// "File List Browser": the list, its keys, and its "Columns" menu: fills it; then what its entries call.
Message File_manager_list(const ListEvent& event);
Message FileListGoUp();
Message FileListAgain();
Message FileListNewName();
Message FileListColumnMenu();
Message FileListColumn(const std::string& label);

// "File List Browser": what lists a directory.
Message FileListBrowserHome();
Message FileListBrowserConfigSpec();
Message FileListBrowserCurrent();
Message FileListBrowserDirectory();
Message FileListBrowserDisplayAll();
Message FileListBrowserFilter();

// "File List Browser": what searches the list.
Message FileListBrowserFind();
Message FileListBrowserNext();

// "File List Browser": what acts on the file.
Message FileListBrowserExecute();
Message FileListBrowserEdit();
Message FileListBrowserDocument();
Message FileListBrowserPrint();
Message FileListBrowserPermissions();
Message FileListBrowserCopyToWorking();
Message FileListBrowserHead();
Message FileListBrowserCd();

// "File List Browser", "File" menu.
Message File_menu_set_directory();
Message Get_directory();
void FileListFileMenuGenerate();
Message File_menu_remove();
Message File_menu_select();
Message File_menu_copy_remote();
Message File_menu_copy();
Message File_menu_rename();
Message File_menu_open_pdf();
Message File_menu_open_html();

// "Generate File List".
Message GenerateFileListRun();
Message GenerateFileListEdit();
void GenerateFileListInclude();

// "File List Browser", "BM" menu.
Message SetBookmarkFileListDir(const std::string& path);
