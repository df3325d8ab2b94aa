// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/tree/deed.h"

#include <string>

// What the entries of the tree's menu do with one file, on the disk. Nothing here knows a window. What has a
// name already keeps it, be it a link that leads nowhere.

/// A file and the directory that something is done with it in.
struct FileAndDirectory {
    std::string file;
    std::string directory;
};

/// Copies a file into a directory, under its name or, where something has that, the same with "_NEW" behind.
Deed copy_into(const FileAndDirectory& at);
/// Copies a file into a directory under another name.
Deed copy_as(const FileAndDirectory& at, const std::string& name);
Deed move_into(const FileAndDirectory& at);
/// Copies a file over the one of its name in a directory.
Deed replace_in(const FileAndDirectory& at);
Deed link_into(const FileAndDirectory& at);
Deed link_symbolically_into(const FileAndDirectory& at);

/// Gives a file or a directory another name in its directory.
Deed rename_in(const FileAndDirectory& at, const std::string& name);
/// Makes an empty file, or a directory.
Deed make_file(const std::string& directory, const std::string& name);
Deed make_directory(const std::string& directory, const std::string& name);

/// Removes a regular file, or a link to one.
Deed remove_file(const WalkedNode& node);
/// Removes an empty directory.
Deed remove_directory(const WalkedNode& node);
