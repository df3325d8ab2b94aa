// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/listing.h"
#include "toolkit/notify.h"

#include <string>

class TreeNode;

// Directories are read, and paths examined, by long work of the "File Tree Browser": what it finds is shown
// when it is there, and so are its messages, in the browser's left footer.

/// Makes a directory, written as its user likes, a new root and opens it. Returns what can be said at once,
/// as does the next.
Message SetRootDisplay(const std::string& path);

/// Opens a node: a directory is read, anew if it is open already; a file goes to the text editor.
Message open_node(TreeNode* node);

/// Shows what has been read of a node's directory instead of the children it has: below it, or in the "File
/// List Browser" where that is more than "Max Files". One that could not be read leaves them.
void AddInstanceNames(TreeNode* node, TreeListing listing);
