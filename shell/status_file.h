// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/descriptor.h"

#include <optional>
#include <string>
#include <string_view>

/// What the shell told of itself, each value cut to the room it has.
struct ShellStatus {
    std::string prompt;  ///< at most 79 bytes
    std::string cwd;     ///< at most 1023 bytes
    std::string host;    ///< at most 79 bytes
    std::string user;    ///< at most 79 bytes
    std::string view;    ///< the ClearCase view root, at most 99 bytes
    bool operator==(const ShellStatus&) const = default;
};

/// Reads the contents of a status file, also of one that is only half written. A line is a key letter, a
/// colon and a value; the key is looked for anywhere in the line, in the order P, C, H, U, V, and the last
/// line of a key holds. Lines are taken in pieces of 1023 bytes.
ShellStatus parse_status(std::string_view contents);

/// The contents of a status file; nothing when there is none or it is no regular file. At most 64 KiB are
/// read.
std::optional<std::string> read_status_file(const std::string& path);

/// A status file of this copy of the tool, which locks it for as long as this object lives.
struct StatusFile {
    std::string path;  ///< empty when there is none
    int error = 0;     ///< why (errno); EEXIST when all are held by running copies
    terminal::Descriptor lock{-1};
};

/// Creates the status file with the smallest free number, 0 to 199, in the home directory: empty, mode 0600,
/// never through a link or over an existing file. Where all exist, the first is emptied and taken over that
/// is the user's own and that no running copy holds: one that was killed has left it.
StatusFile create_status_file(const std::string& home);

/// Removes the status files 0 to `last` in the home directory, but for those that running copies hold.
void remove_left_status_files(const std::string& home, int last);

/// The items of the status line, as bits of a mask.
enum StatusItem : unsigned { status_view = 1, status_host = 2, status_pid = 4, status_user = 8 };

/// The status line: host, user, process number and view, as far as their bits are set in `enabled`.
std::string status_line(const ShellStatus& status, unsigned enabled, int process_id);
