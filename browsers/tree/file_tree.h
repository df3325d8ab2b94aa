// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/file_tag.h"
#include "browsers/tree/trace.h"
#include "toolkit/notify.h"
#include "toolkit/tree/tree_canvas.h"

#include <string>

// The tree of the "File Tree Browser": its nodes, each a file or directory, and what is known of them.

/// The node that the view is to be centred on: the root set last, the node double-clicked last, the one that
/// was gone to last.
inline NodeReference GlobalObject;
/// The way that "go back" has come.
inline Trace TraceObjects;

/// The tree itself, and the record of one of its nodes.
TreeCanvas& file_tree();
FileTag& file_tag(const TreeNode* node);
NodeReference reference_to(TreeNode* node);

/// Adds a node for a path below a parent, or a root where that is null. A path that leads nowhere gets none:
/// null then, and "Illegal file" stands in the browser's left footer.
TreeNode* AddOneLeaf(const std::string& label, const std::string& path, TreeCanvas& tree, TreeNode* parent,
                     int group, int is_root, int font_size);
/// The same for a path that has been looked at, at a place among its siblings.
TreeNode* add_leaf(TreeCanvas& tree, TreeNode* parent, std::unique_ptr<FileTag> tag, mode_t mode,
                   int font_size, int position = TreeCanvas::at_end);

/// The same for a path below a parent, which need not be that of its directory.
TreeNode* add_examined(const std::string& label, const std::string& path, TreeNode* parent, FileGlance glance,
                       int font_size, int position = TreeCanvas::at_end);

/// The root of the tree that holds a node; null when the node is a root itself.
TreeNode* GetRootObject(TreeNode* node);

/// Which nodes `GetFileTreeName` takes.
enum class TreeNameKind : unsigned char { any, not_directories, not_files };
/// The path of the single selected node; empty when there is none, or more than one, or it leads nowhere, or
/// is not of that kind.
std::string GetFileTreeName(TreeNameKind kind);

/// Selects all children of a node.
void SelectAllNodes(TreeNode* node);

/// The right footer tells how many nodes are selected, when there are several. To be called when the program
/// itself has changed the selection.
void show_selected_count();

/// Centres the view on `GlobalObject`, after so many milliseconds or at once.
void SetupTimerFileTree(int milliseconds);
void DisplaySelectedModule();
inline constexpr int centring_delay = 500;  ///< milliseconds

/// The node selected last; null when there is none.
TreeNode* last_selected();
/// The one selected node; null when there are none or several.
TreeNode* only_selected();
