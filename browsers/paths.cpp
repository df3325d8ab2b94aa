// SPDX-License-Identifier: MIT
#include "browsers/paths.h"

#include "shell/text.h"

std::string path_in(const std::string& directory, const std::string& name) {
    return directory.ends_with('/') ? directory + name : directory + "/" + name;
}

std::string directory_meant(const std::string& path, const std::string& start) {
    const std::string resolved = path.starts_with('.') ? replace_dot(path, start) : path;
    const std::string stripped = remove_trailing_slashes(resolved);
    return stripped.empty() && !path.empty() ? "/" : stripped;
}

std::string parent_directory(const std::string& path) {
    const std::string parent = getdirname(remove_trailing_slashes(path));
    return parent.empty() ? "/" : parent;
}
