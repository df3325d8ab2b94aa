// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// How the user's files are loaded, and what their user is told of it. A loader gives 1 loaded, 0 cannot be
// read, -1 the first line is not such a file's, and some 2 for what follows it.

/// What to do with a file that somebody else may have written.
enum class WhenDoubtful : std::uint8_t { warn, refuse };

/// The beginning of a file that is loaded, whole when `error` is 0.
struct LoadedFile {
    std::optional<std::string> text;  ///< nothing when the file could not be read
    int error = 0;                    ///< why not (errno); EFBIG when only the beginning was read
};

/// Reads a regular file as far as so many bytes, and 100,000 lines. What its loader's result does not tell
/// goes to the Message Board: why it could not be read, that it is too large, that it is another's.
LoadedFile load_file(const std::string& path, std::size_t limit,
                     WhenDoubtful when_doubtful = WhenDoubtful::warn);

/// What the user is told of a loader's results; empty where it gives no such one.
struct LoadTexts {
    std::string_view unreadable;
    std::string_view wrong_header;
    std::string_view bad_line = {};
    std::string_view header_hint = {};  ///< on the Message Board, behind that of a wrong header
};

inline constexpr LoadTexts setup_load{"Setup file not found", "Not a valid setup file"};
inline constexpr LoadTexts history_load{"History file not found", "Not a valid history file"};
inline constexpr LoadTexts menu_load{".orvik-menu not found", "Not a valid menu definition file",
                                     "Illegal file format", "First line of text must be _MENU"};
inline constexpr LoadTexts bookmarks_load{"Bookmark file not found", "Not a valid bookmarks file",
                                          "Illegal file format", "First line of text must be _BOOKMARK"};
inline constexpr LoadTexts commands_load{"File not found", "Not a valid file"};
inline constexpr LoadTexts commands_menu_load{"Couldn't open commands file for reading",
                                              "Illegal format of commands file"};

/// The text for a loader's result; empty for 1.
Message load_message(const LoadTexts& texts, int result);
/// Puts it on the Message Board, with the hint.
void report_load(const LoadTexts& texts, int result);
