// SPDX-License-Identifier: MIT
#pragma once

#include "shell/process.h"

#include <string>

/// A path of the tree or the list as one that does not depend on the directory which the shell is in: others
/// begin in the directory where the tool was started.
inline std::string absolute_path(const std::string& path) {
    return path.starts_with('/') ? path : startup_dir + "/" + path;
}
