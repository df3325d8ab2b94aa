// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"
#include "toolkit/progress.h"

#include <cstdint>
#include <string>
#include <vector>

// The script that copies a directory into a VOB. Nothing here knows a window.

/// What is to be copied.
struct VobCopy {
    std::string tool;                ///< the ClearCase tool's name, the user's own words
    std::string source;              ///< a directory
    std::string destination;         ///< the directory that it becomes
    std::vector<std::string> skips;  ///< what holds one of these texts in its path is left out
};

/// The two halves of the script, each of which is a walk through the source.
enum class VobPass : std::uint8_t {
    make,      ///< directories, copies and elements are made
    check_in,  ///< all of them are checked in
};

/// A half of the script, for sh; or why there is none.
struct VobLines {
    std::string text;
    Message fault;
};

/// Walks the source, a directory before what is in it, and writes the lines for each directory and regular
/// file. Symbolic links are followed, each directory is entered once. The progress counts the entries.
VobLines vob_lines(const VobCopy& copy, VobPass pass, Progress& progress);
