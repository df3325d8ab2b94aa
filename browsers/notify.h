// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <string>

struct ListEvent;
class TreeCanvas;

// The notify procedures of browsers/, bound to controls by the windows, and to entries of menus made at run
// time.

// "File Tree Browser": the tree itself.
Message FileTreeClick();
Message FileTreeDoubleClick();
void FileTreeSelectionChanged();
void resize_tree(TreeCanvas& canvas, int width, int height);

// "Select Root" menu: each fills "Root Directory:". Then what acts on the two fields.
Message SetRootCurrentDirectory();
Message FileTreeBrowserSerParent();
Message Set_directory_selected();
Message Select_home_root();
Message FileTreeSetRoot();
Message FileTreeLookup();
Message FileTreeUp();
Message FileTreeSetDirectory();
Message FileTreeSetRootCurrentFile();
Message SetBookmarkRoot(const std::string& path);

// The buttons that take nodes off the tree.
Message Clear_tree();
Message FileTreeClearAll();

// The image buttons beside the tree.
Message FileTreeGoBack();
Message FileTreeGoForward();
Message FileTreeFindSelection();
Message FileTreeFindRoot();
Message FileTreeTraceBack();
Message FileTreeSelectAll();
Message FileTreeScrollUpperLeft();
Message FileTreeScrollUpperRight();
Message FileTreeScrollLowerLeft();
Message FileTreeScrollLowerRight();
Message FileTreeScrollRight();
Message FileTreeScrollLeft();
Message FileTreeScrollUp();
Message FileTreeScrollDown();
Message FileTreeRefresh();
Message FileTreeFullSize();
Message FileTreeNormalSize();
Message FileTreeIconifyMainWindow();
Message FileTreeShowMainWindow();

// "Options" and "More" menus.
Message add_bookmark();
Message clear_branch();
Message display_status();
Message select_files();
Message set_new_root();
Message set_directory();
Message set_parent_root();
void FileTreeBrowserSetupOpen();

// "Lookup Directories" of the tree, and of the main window, with the button for it.
Message LookupTreeDisplay();
Message LookupTreeUp();
Message LookupTreeSetRoot();
Message LookupTreeList(const ListEvent& event);
void BaseWindowLookup();
Message LookupMainDisplay();
Message LookupMainCurrent();
Message LookupMainUp();
Message LookupMainLs();
Message LookupMainCd();
Message LookupMainList(const ListEvent& event);

// "File Status".
Message Set_permissions();
Message FilePermissionsSetAll();

// The button "Plot", and "Plot Setup Window".
void FileTreePlot();
Message Plot_to_file();

// "Select Files".
Message SelectFilesSelectButton();

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
Message FileListBrowserSetRoot();
Message FileListBrowserCopyToTree();

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
