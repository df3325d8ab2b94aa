// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

/// The path of the file named in the "File List Browser". Nothing, and the browser's left footer says why,
/// when its "File Name:" or "Directory:" is empty; else the footer is cleared.
std::optional<std::string> listed_file();
