// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/file_facts.h"

#include <string>

class Frame;

// The "File Status" window, as the browsers refresh it.

/// Shows a file's status and permissions and makes it the window's file; `name` is shown on the name line.
/// Returns at once: the file is examined by long work of the window. Where that fails, the left footer of
/// `frame`, the caller's window, says so and what is shown stays.
void show_file_status(Frame& frame, const std::string& path, const std::string& name);

/// Shows the lines of a file that has been examined. One that could not be changes nothing: the left footer
/// of `frame` says so.
void GetFileStatus(Frame& frame, const FileFacts& facts, const std::string& name);
/// Sets the boxes of a file that has been examined; the same for one that could not be.
void GetFilePermissions(Frame& frame, const FileFacts& facts);
/// Bare lines and empty boxes.
void ClearFileStatus();
