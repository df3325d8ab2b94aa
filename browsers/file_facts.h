// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

// What "File Status" shows of a file, as texts and boxes. Nothing here knows a window.

/// The boxes of one class of users: a bit for each that is checked.
enum PermissionBox : unsigned { box_read = 1, box_write = 2, box_execute = 4 };

/// Who may do what, as the boxes show it.
struct PermissionBoxes {
    unsigned owner = 0;
    unsigned group = 0;
    unsigned world = 0;

    bool operator==(const PermissionBoxes&) const = default;
};

PermissionBoxes boxes_of(mode_t mode);
/// The permission bits alone.
mode_t mode_of(const PermissionBoxes& boxes);

/// The lines of the window without values.
inline constexpr std::string_view bare_name_line = "File name       : ";
inline constexpr std::string_view bare_type_line = "File type         : ";
inline constexpr std::string_view bare_owner_line = "File owner      : ";
inline constexpr std::string_view bare_group_line = "File group      : ";
inline constexpr std::string_view bare_size_line = "File size         : ";
inline constexpr std::string_view bare_accessed_line = "Last accessed  : ";
inline constexpr std::string_view bare_modified_line = "Last modified  : ";
inline constexpr std::string_view bare_changed_line = "Status changed : ";

/// What a file was when it was examined: the lines of the window, but for the name, and the boxes.
struct FileFacts {
    bool known = false;  ///< it could be examined
    PermissionBoxes permissions;
    std::string type;
    std::string owner;
    std::string group;
    std::string size;
    std::string accessed;
    std::string modified;
    std::string changed;

    explicit operator bool() const { return known; }
};

/// Examines what a path leads to, through links. That and the names of owner and group may be a server's to
/// tell.
FileFacts examine_file(const std::string& path);
/// The kind of file that a mode tells: "Directory", "Regular".
std::string_view file_type_text(mode_t mode);
/// A time as the window shows it, in local time.
std::string status_time(time_t time);
