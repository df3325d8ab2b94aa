// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/notify.h"

#include <cstdint>
#include <string>

/// The programs that files are looked at with, beside the editor.
enum class Viewer : std::uint8_t { pager, framemaker, pdf, office, html, picture, sgml, zebra };

/// Opens a file in one of them, in the background, and shows the command on the Message Board. Returns why
/// not: the environment variable that names the program itself is not set.
[[nodiscard]] Message view_file(Viewer viewer, const std::string& path);
