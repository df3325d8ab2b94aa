// SPDX-License-Identifier: MIT
#pragma once

#include "browsers/file_type.h"

#include <string_view>

/// Opens "Bookmark Definition" for a path, whose bookmark gets a name there.
void define_bookmark(std::string_view path, FileType type);
