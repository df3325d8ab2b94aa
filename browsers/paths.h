// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// Paths of directories, as the browsers walk them. Nothing here asks for a file.

/// A directory's path and a name in it as one path; only "/" ends in a "/" already.
std::string path_in(const std::string& directory, const std::string& name);

/// A directory as its user gave it: "." and what begins so is resolved against `start`, and "/" at the end
/// goes, but for that of "/" itself.
std::string directory_meant(const std::string& path, const std::string& start);

/// The directory above; that above "/" is "/".
std::string parent_directory(const std::string& path);
